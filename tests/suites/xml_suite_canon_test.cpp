// Canonical forms of the well-formed documents of the W3C's XML conformance suite against those of libxml2. Both read the
// external subset and external entities. What is known to come out otherwise is held one document at a time.

#include "../service/TextStream.h"
#include "KnownExceptions.h"
#include "XmlSuite.h"

#include <axsCanonicalForm.h>

#include <libxml/c14n.h>
#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <string>

namespace
{
struct Free
{
  void operator()(xmlDocPtr document) const noexcept { xmlFreeDoc(document); }
  void operator()(xmlChar* text) const noexcept { xmlFree(text); }
};

void say_nothing(void*, char const*, ...) {}

/// A canonical form, or why there is none.
struct Form
{
  bool is_there = false;
  std::string text;
};

Form axs_form(std::string const& file, axsCanonicalOptions const& options)
{
  axmLoadOptions reading(axmValidateNone);
  reading.set_disable_entity_resolution(false);
  Form form;
  axmParseError error;
  auto const write = appending_to(form.text);
  form.is_there = axsCanonicalForm::write(apPath(file.c_str()), reading, options, error, write);
  if (!form.is_there)
    form.text = error.message().to_utf8().view();
  return form;
}

Form libxml2_form(std::string const& file, axsCanonicalOptions const& options)
{
  xmlSetGenericErrorFunc(nullptr, &say_nothing);
  int const how =
    XML_PARSE_NOENT | XML_PARSE_DTDLOAD | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
  Form form;
  std::unique_ptr<xmlDoc, Free> const document(xmlReadFile(file.c_str(), nullptr, how));
  if (document != nullptr)
  {
    xmlChar* text = nullptr;
    int const size = xmlC14NDocDumpMemory(document.get(), nullptr,
      options.is_exclusive ? XML_C14N_EXCLUSIVE_1_0 : XML_C14N_1_1, nullptr, options.has_comments ? 1 : 0, &text);
    std::unique_ptr<xmlChar, Free> const held(text);
    form.is_there = size >= 0;
    if (form.is_there)
      form.text.assign(reinterpret_cast<char const*>(text), static_cast<std::size_t>(size));
  }
  if (!form.is_there && xmlGetLastError() != nullptr)
    form.text = xmlGetLastError()->message;
  xmlResetLastError();
  return form;
}

std::string around(std::string const& text, std::size_t at)
{
  std::size_t const begin = at < 30 ? 0 : at - 30;
  return "'" + text.substr(begin, 60) + "'";
}

std::string difference(Form const& ours, Form const& theirs)
{
  if (!ours.is_there)
    return theirs.is_there ? "refused here: " + ours.text : "refused by both: " + ours.text;
  if (!theirs.is_there)
    return "refused by libxml2: " + theirs.text;
  if (ours.text == theirs.text)
    return {};
  auto const [at, other] = std::mismatch(ours.text.begin(), ours.text.end(), theirs.text.begin(), theirs.text.end());
  auto const place = static_cast<std::size_t>(at - ours.text.begin());
  return around(ours.text, place) + " here, " + around(theirs.text, place) + " there";
}

std::string difference(std::string const& file)
{
  axsCanonicalOptions with_comments;
  with_comments.has_comments = true;
  axsCanonicalOptions exclusive;
  exclusive.is_exclusive = true;
  for (axsCanonicalOptions const& options : {axsCanonicalOptions(), with_comments, exclusive})
    if (std::string const found = difference(axs_form(file, options), libxml2_form(file, options)); !found.empty())
      return found;
  return {};
}

/// Canonical forms are those of documents of XML 1.0.
bool is_xml_1_1(XmlTest const& test)
{
  std::ifstream stream(test.file, std::ios::binary);
  std::string beginning(30, '\0');
  stream.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
  return beginning.find("version=\"1.1\"") != beginning.npos || beginning.find("version='1.1'") != beginning.npos;
}

bool is_well_formed(XmlTest const& test)
{
  return test.is_of_fifth_edition && (test.type == "valid" || test.type == "invalid");
}
}

TEST(xml_suite_canon, is_that_of_libxml2)
{
  auto known = read_known_exceptions(std::string(AXM_SUITE_LISTS) + "/canonical_differences.tsv");
  int equal = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
  {
    if (!is_well_formed(test) || is_xml_1_1(test))
      continue;
    std::string const found = difference(test.file);
    equal += found.empty() ? 1 : 0;
    auto const listed = known.find(test.id);
    if (listed == known.end())
    {
      EXPECT_EQ(found, "") << test.id << " is not in canonical_differences.tsv\n" << test.file;
      continue;
    }
    EXPECT_NE(found, "") << test.id << " is in canonical_differences.tsv without need: " << listed->second;
    known.erase(listed);
  }
  for (auto const& [id, reason] : known)
    ADD_FAILURE() << id << " in canonical_differences.tsv is no well-formed test of the suite";
  RecordProperty("equal", equal);
  EXPECT_GT(equal, 900);
}
