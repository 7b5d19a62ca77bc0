// Random edits of the well-formed documents of the W3C's XML conformance suite as they are written: as they are, and once
// more in UTF-16. AXM_SUITE_EDITS is how many edits of each there are (1 without it).

#include "EditTrial.h"
#include "XmlSuite.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iconv.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace
{
std::string contents(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool begins(std::string const& text, std::string_view with)
{
  return text.compare(0, with.size(), with) == 0;
}

/// Empty where the text is not in that encoding.
std::string converted(std::string text, std::string const& from, std::string const& to)
{
  iconv_t const converter = iconv_open(to.c_str(), from.c_str());
  if (converter == reinterpret_cast<iconv_t>(-1))
    return {};
  std::string made(text.size() * 4 + 16, '\0');
  char* in = text.data();
  char* out = made.data();
  std::size_t left = text.size();
  std::size_t room = made.size();
  bool const is_whole =
    iconv(converter, &in, &left, &out, &room) == 0 && iconv(converter, nullptr, nullptr, &out, &room) == 0;
  iconv_close(converter);
  made.resize(made.size() - room);
  return is_whole ? made : std::string();
}

// Where the name of the encoding stands in the XML declaration, without its quotes; an empty range if there is none.
struct Range
{
  std::size_t begin = 0;
  std::size_t end = 0;
};

Range declared_encoding(std::string const& bytes)
{
  std::size_t const first = begins(bytes, "\xEF\xBB\xBF") ? 3 : 0;
  std::string const declaration = bytes.substr(first, bytes.find('>') - first);
  std::size_t const word = declaration.find("encoding");
  if (!begins(declaration, "<?xml") || word == std::string::npos)
    return {};
  std::size_t const quote = declaration.find_first_of("'\"", word);
  if (quote == std::string::npos)
    return {};
  std::size_t const end = declaration.find(declaration[quote], quote + 1);
  return end == std::string::npos ? Range{} : Range{first + quote + 1, first + end};
}

std::string encoding_of(std::string const& bytes)
{
  if (begins(bytes, "\xFF\xFE"))
    return "UTF-16LE";
  if (begins(bytes, "\xFE\xFF"))
    return "UTF-16BE";
  Range const name = declared_encoding(bytes);
  return name.end == 0 ? "UTF-8" : bytes.substr(name.begin, name.end - name.begin);
}

/// With another encoding in its XML declaration, if it has one there.
std::string declared_as(std::string utf8, std::string const& encoding)
{
  Range const name = declared_encoding(utf8);
  return name.end == 0 ? utf8 : utf8.replace(name.begin, name.end - name.begin, encoding);
}

std::size_t edit(axsEditor& editor, std::string const& chosen, unsigned kind)
{
  switch (kind % 4)
  {
  case 0:
    return editor.set_attributes(chosen, {{"new", "'value' & more"}});
  case 1:
    return editor.rename(chosen, "new-name");
  case 2:
    return editor.remove(chosen);
  default:
    return editor.insert(chosen, static_cast<axsEditPlace>(kind / 4 % 4), "<new a='1'>text<!--c--></new>\n");
  }
}

/// The same edit in UTF-8 and in another encoding gives the same document.
void expect_same_edit(
  std::string const& utf8, std::string const& encoding, std::string const& name, std::mt19937& random)
{
  std::string const mark = "\xEF\xBB\xBF";
  bool const is_utf_16 = begins(encoding, "UTF-16");
  std::string const marked = is_utf_16 && !begins(utf8, mark) ? mark + utf8 : utf8;
  std::string const one_text = declared_as(marked, "UTF-8");
  std::string const bytes = converted(declared_as(marked, name), "UTF-8", encoding);
  ASSERT_FALSE(bytes.empty());
  std::size_t const elements = Markup::elements(one_text).size();
  std::string const chosen = EditTrial::number_of(random() % elements);
  unsigned const kind = static_cast<unsigned>(random());
  axsEditor one(one_text, apPath());
  axsEditor other(bytes, apPath());
  EXPECT_EQ(edit(one, chosen, kind), edit(other, chosen, kind)) << other.fault().error.message();
  EXPECT_EQ(declared_as(converted(other.bytes(), encoding, "UTF-8"), "UTF-8"), one.bytes()) << chosen << ' ' << kind;
}

/// Whether the document loads as it is given, and all its elements stand in it.
bool can_be_edited(std::string const& utf8)
{
  axs_register();
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError error;
  auto const document =
    factory->loadDocument(apByteArray(utf8.data(), utf8.size()), axmLoadOptions(axmValidateNone), error);
  axsXPath::Value count;
  axsXPathError wrong;
  return document != nullptr && axsXPath::evaluate(*document, "count(//*)", count, wrong) &&
         count.number == static_cast<double>(Markup::elements(utf8).size());
}

int number_of_edits()
{
  char const* const wanted = std::getenv("AXM_SUITE_EDITS");
  return wanted == nullptr ? 1 : std::atoi(wanted);
}

bool is_well_formed(XmlTest const& test)
{
  return test.is_of_fifth_edition && (test.type == "valid" || test.type == "invalid");
}
}

TEST(xml_suite_edit, changes_nothing_else_and_means_what_the_tree_says)
{
  std::mt19937 random(9);
  int edits = 0;
  int refused = 0;
  int others = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
  {
    if (!is_well_formed(test))
      continue;
    SCOPED_TRACE(test.file);
    std::string const bytes = contents(test.file);
    std::string const encoding = encoding_of(bytes);
    bool const is_utf_8 = encoding == "UTF-8" || encoding == "utf-8";
    std::string const utf8 = is_utf_8 ? bytes : declared_as(converted(bytes, encoding, "UTF-8"), "UTF-8");
    if (utf8.empty() || !can_be_edited(utf8))
      continue;
    for (int i = 0; i < number_of_edits(); ++i)
    {
      EditedDocument const document(utf8);
      EditTrial trial(document, random);
      trial.run();
      refused += trial.was_refused() ? 1 : 0;
      ++edits;
      expect_same_edit(utf8, "UTF-16LE", "UTF-16", random);
      expect_same_edit(utf8, "UTF-16BE", "UTF-16", random);
      if (!is_utf_8)
      {
        expect_same_edit(utf8, encoding, encoding, random);
        ++others;
      }
    }
    if (HasFailure())
      break;
  }
  RecordProperty("edits", edits);
  RecordProperty("refused", refused);
  RecordProperty("of_other_encodings", others);
  EXPECT_GT(edits, 900 * number_of_edits());
  EXPECT_GT(others, 5 * number_of_edits());
  // Many documents have a root element only, which cannot be taken out.
  EXPECT_LT(refused, edits * 2 / 3);
}
