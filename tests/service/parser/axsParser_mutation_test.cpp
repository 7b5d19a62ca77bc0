// Documents that chance has changed, read by three other parsers as well. Each difference is one of those that are known.

#include "BothRoads.h"
#include "ExpatJudge.h"
#include "MutatedDocuments.h"
#include "XercesJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{
bool has(std::string const& text, char const* part)
{
  return text.find(part) != std::string::npos;
}

// Why a judge and ours differ although ours is right.
struct Difference
{
  char const* reason;
  bool (*is_it)(std::string const& document, BothRoads const& roads);
};

struct Judge
{
  char const* name;
  BothRoads::Judge read;
  std::vector<Difference> known;
};

// Whether the two differ in white space alone.
bool is_about_spaces(std::string const& difference)
{
  std::string const middle = "\", but to the judge \"";
  std::size_t const at = difference.find(middle);
  if (at == std::string::npos)
    return false;
  auto const without_spaces = [](std::string text)
  {
    text.erase(
      std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t' || c == '\r'; }), text.end());
    return text;
  };
  return without_spaces(difference.substr(1, at - 1)) ==
         without_spaces(difference.substr(at + middle.size(), difference.size() - at - middle.size() - 1));
}

// An entity is not declared in what is read, but may be in what is not. Ours refuses that in every document.
bool may_be_declared_elsewhere(std::string const& document, BothRoads const& roads)
{
  return has(roads.refusal(), "is not declared") && (has(document, "SYSTEM") || has(document, "PUBLIC"));
}

// Those of the parts that fifth edition alone has in names.
bool has_new_name_characters(std::string const& document)
{
  return document.find("\xEF\xBB\xBF", 1) != std::string::npos || has(document, "\xE2\x82\xAC") ||
         has(document, "\xF0\x9D\x84\x9E") || has(document, "\xEF\xBC\x8C");
}

// It is no version number, but the judge does not look.
bool is_no_version(std::string const&, BothRoads const& roads)
{
  return has(roads.refusal(), "there is no XML version") ||
         has(roads.refusal(), "'=' and a value in quotes must follow in the XML declaration");
}

// Namespaces in XML 1.0, 5 and 7
bool is_unqualified_declaration(std::string const& document, BothRoads const& roads)
{
  return has(document, "<!DOCTYPE") &&
         (has(roads.refusal(), "is not a name with a prefix") ||
           has(roads.refusal(), "the name of an entity or a notation cannot have a colon"));
}

bool is_zero(std::string const&, BothRoads const& roads)
{
  return has(roads.refusal(), "A zero byte");
}

std::vector<Judge> const judges = {
  {"libxml2", Xml2Judge::read,
    {{"takes namespaces for URIs, which they need not be", [](std::string const&, BothRoads const& roads)
       { return has(roads.difference(), " URI") || has(roads.difference(), "Namespace compliant"); }},
      {"changes line ends in the text of entities", [](std::string const& document, BothRoads const&)
        { return has(document, "<!ENTITY") && has(document, "&#xD;"); }},
      {"knows no XML 1.1, and of the parts of a name only the characters of earlier editions",
        [](std::string const& document, BothRoads const&) { return has(document, "1.1"); }},
      {"leaves an entity that may be declared elsewhere", may_be_declared_elsewhere},
      {"ends at a zero byte after the root element", is_zero}, //
      {"takes what is no version", is_no_version},
      {"looks at colons outside of declarations only", is_unqualified_declaration},
      {"wants no white space before the name of a document type",
        [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "white space is missing here") && !has(document, "<!DOCTYPE "); }},
      {"takes a default that binds a prefix to nothing", [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "cannot be bound to no namespace") && has(document, "<!ATTLIST"); }},
      {"takes an internal subset after the end of the document type",
        [](std::string const& document, BothRoads const&) { return has(document, ">["); }}}},
  {"expat", ExpatJudge::read,
    {{"has names of the fourth edition", [](std::string const& document, BothRoads const& roads)
       { return has(roads.difference(), "(invalid token)") && has_new_name_characters(document); }},
      {"leaves an entity that may be declared elsewhere", may_be_declared_elsewhere},
      {"takes what is no version", is_no_version},
      {"looks at the beginning of a name after a colon outside of declarations only", is_unqualified_declaration},
      {"knows an encoding by one spelling alone",
        [](std::string const&, BothRoads const& roads) { return has(roads.difference(), "unknown encoding"); }}}},
  {"Xerces-C", XercesJudge::read,
    {{"leaves an entity that may be declared elsewhere", may_be_declared_elsewhere},
      {"takes what is no version", is_no_version}, //
      {"ends at a zero byte after the root element", is_zero},
      {"looks at colons outside of declarations only", is_unqualified_declaration},
      {"ends at a character of which the rest is missing", [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "is not UTF-8") && static_cast<unsigned char>(document.back()) >= 0x80; }},
      {"looks at no character of a system identifier", [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "invalid character") && has(document, "<!DOCTYPE"); }},
      {"looks at no character of a version", [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "invalid character") && has(document.substr(0, document.find("?>")), "\x01"); }},
      {"wants no white space after a literal of a declaration", [](std::string const& document, BothRoads const& roads)
        { return has(roads.refusal(), "white space is missing here") && has(document, "<!DOCTYPE"); }},
      {"leaves values of an enumeration as they are, and takes line ends out of other tokens",
        [](std::string const& document, BothRoads const& roads)
        { return is_about_spaces(roads.difference()) && has(document, "<!ATTLIST"); }},
      {"has elements with the prefix xmlns",
        [](std::string const&, BothRoads const& roads) { return has(roads.refusal(), "the prefix 'xmlns' of"); }},
      {"takes '&lt;' in a default for '<'", [](std::string const& document, BothRoads const& roads)
        { return has(roads.difference(), "'<' character cannot be used") && has(document, "&lt;"); }},
      {"joins ']]' and the '>' of an entity after it", [](std::string const& document, BothRoads const& roads)
        { return has(roads.difference(), "']]>' sequence is not allowed") && has(document, "]]&e;"); }}}}};

// More of them where AXM_JUDGED_DOCUMENTS asks for so many.
int number_of_documents()
{
  char const* const wanted = std::getenv("AXM_JUDGED_DOCUMENTS");
  return wanted == nullptr ? 30000 : std::atoi(wanted);
}

bool is_known(Judge const& judge, std::string const& document, BothRoads const& roads)
{
  return std::any_of(judge.known.begin(), judge.known.end(),
    [&](Difference const& difference) { return difference.is_it(document, roads); });
}
}

TEST(axsParser_mutation, each_difference_from_other_parsers_is_a_known_one)
{
  for (Judge const& judge : judges)
  {
    MutatedDocuments documents(20240607);
    int taken = 0;
    int refused = 0;
    for (int i = 0; i < number_of_documents(); ++i)
    {
      std::string const document = documents.next();
      BothRoads const roads(document, axmLoadOptions(axmValidateNone), judge.read);
      (roads.scanned() ? taken : refused) += 1;
      if ((roads.difference().empty() && roads.refusal().empty()) || is_known(judge, document, roads))
        continue;
      ADD_FAILURE() << judge.name << ": " << roads.difference() << roads.refusal() << "\n" << document;
    }
    // There must be enough of both for the comparison to say something.
    EXPECT_GT(taken, 2000);
    EXPECT_GT(refused, 2000);
  }
}
