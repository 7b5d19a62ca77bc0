#include "BothRoads.h"
#include "axsCharacters.h"
#include "axsReadError.h"
#include "axsSource.h"

#include "../Engine.h"

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{
std::string const with_everything =
  "<!--c--><?p d?>\n<!DOCTYPE r PUBLIC 'p' \"s\" [<!ELEMENT r (#PCDATA|\xC3\xA4)*>\r\n<!ELEMENT a ((b?,c),d*)+ "
  "><!--\xC3\xA4-->"
  "<!ATTLIST a b NMTOKENS #FIXED ' x  y&#x20AC;' c (d|e) #REQUIRED f NOTATION (n) #IMPLIED g CDATA\r'\xC3\xA4\r\n'>"
  "<?p \xC3\xA4?><!NOTATION n PUBLIC 'p' \t><!ENTITY e '\xE2\x82\xAC&#x20AC;&f;\r' ><!ENTITY "
  "long.entity\n'\xE2\x82\xAC\r\n&#x20AC;'> ]\n><r xmlns='u' xmlns:p='v' "
  "p:a='x\r\ny' "
  "b=\"&lt;&#65;&#x20AC;\xC3\xA4\">\r\n text &amp; "
  "\xE2\x82\xAC]] <p:e \n/>"
  "<![CDATA[<]>\r]]><a>\n</a\t><!--\r--><?q  r?\r\n?>&#13;<p:e p:a='' "
  "c='&apos;&long.entity;'>]\r&long.entity;</p:e></r >\n<!--e--> ";

char byte(char32_t value)
{
  return static_cast<char>(value);
}

std::string utf8(char32_t code)
{
  if (code < 0x80)
    return {byte(code)};
  if (code < 0x800)
    return {byte(0xC0 + code / 64), byte(0x80 + code % 64)};
  if (code < 0x10000)
    return {byte(0xE0 + code / 4096), byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
  return {
    byte(0xF0 + code / 262144), byte(0x80 + code / 4096 % 64), byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
}

// All characters of XML that are beyond ASCII.
std::string const& all_characters()
{
  static std::string const all = []
  {
    std::string made;
    for (char32_t code = 0x80; code <= 0x10FFFF; ++code)
      if (axsCharacters::is_character(code))
        made += utf8(code);
    return made;
  }();
  return all;
}

void expect_taken(std::string const& document)
{
  BothRoads const roads(document);
  EXPECT_TRUE(roads.scanned()) << document.substr(0, 200);
  EXPECT_EQ(roads.difference(), "") << document.substr(0, 200);
}
}

TEST(axsParser, takes_every_character_as_the_parser_does)
{
  expect_taken("<r>" + all_characters() + "</r>");
  expect_taken("<r a='" + all_characters() + "'/>");
  expect_taken("<r><!--" + all_characters() + "--></r>");
  expect_taken("<r><?p " + all_characters() + "?></r>");
  expect_taken("<r><![CDATA[" + all_characters() + "]]></r>");
  std::string references;
  for (unsigned long code = 1; code <= 0x10FFFF; code += code < 0x10000 ? 1 : 251)
    if (axsCharacters::is_character(static_cast<char32_t>(code)))
      references += "&#" + std::to_string(code) + ";";
  expect_taken("<r a='" + references + "'>" + references + "</r>");
}

TEST(axsParser, takes_every_character_in_names_as_the_parser_does)
{
  std::string document = "<r>";
  int first = 0;
  int further = 0;
  for (char32_t code = 0x21; code <= 0x10FFFF; code += code < 0x20000 ? 1 : 4093)
  {
    std::string const character = utf8(code);
    std::string const begin = character + std::string(17, '\0');
    std::string const behind = 'a' + begin;
    if (axsCharacters::end_of_name(begin.data()) != begin.data() && code != ':')
    {
      document += '<' + character + "/>";
      ++first;
    }
    if (axsCharacters::end_of_name(behind.data()) != behind.data() + 1 && code != ':')
    {
      document += "<a" + character + " b" + character + "='1'></a" + character + '>';
      ++further;
    }
  }
  EXPECT_GT(first, 20000);
  EXPECT_GT(further, first);
  expect_taken(document + "</r>");
}

// Every byte of the document comes to be the last one that is in memory at first.
TEST(axsParser, reads_on_wherever_a_piece_ends)
{
  std::size_t const piece = 65536;
  for (std::size_t shift = 0; shift <= with_everything.size(); ++shift)
    expect_taken(std::string(piece - shift, ' ') + with_everything);
  for (std::string const before : {"<r a='", "<r>", "<r><!--", "<r><?p ", "<r><![CDATA[", "<"})
    for (std::string const behind : {"\r\n\xE2\x82\xAC&#x20AC;\xF0\x9D\x84\x9E&amp;"})
      for (std::size_t shift = 0; shift <= behind.size() + 2; ++shift)
      {
        std::string document = before + std::string(piece - before.size() - shift, 'x');
        if (before == "<")
          document += "/>";
        else if (before == "<r a='")
          document += behind + "'/>";
        else if (before == "<r>")
          document += behind + "]]</r>";
        else
          document += behind + (before == "<r><!--" ? "-->" : before == "<r><?p " ? "?>" : "]]>") + "</r>";
        expect_taken(document);
      }
}

TEST(axsParser, refuses_what_ends_too_early_wherever_that_is)
{
  for (std::size_t length = 0; length < with_everything.size() - 11; ++length)
    for (std::size_t const before : {0u, 65536u, 70000u})
    {
      std::string const document =
        std::string(before - std::min(before, length), ' ') + with_everything.substr(0, length);
      error_of(document);
    }
}

TEST(axsParser, takes_what_is_longer_than_a_piece)
{
  std::string const filler(300000, 'x');
  std::string const special = filler + "\r\n&amp;\xC3\xA4" + filler;
  expect_taken("<r>" + filler + "</r>");
  expect_taken("<r>" + special + "]]</r>");
  expect_taken("<r a='" + special + "' b='" + special + "'/>");
  expect_taken("<!--" + special + "--><r><?p " + special + "?><![CDATA[" + special + "]]></r>");
  expect_taken("<r>" + std::string(300000, ' ') + "<a" + std::string(300000, '\n') + "b='1'" +
               std::string(300000, '\t') + "/></r" + std::string(300000, '\r') + ">" + std::string(300000, ' '));
}

TEST(axsParser, takes_large_numbers_of_everything)
{
  std::string attributes;
  std::string prefixed;
  std::string names;
  for (int i = 0; i < 20000; ++i)
  {
    std::string const number = std::to_string(i);
    attributes += " a" + number + "='" + number + "'";
    prefixed += (i % 2 == 0 ? " p:a" : " q:a") + number + "='" + number + "'";
    names += "<a" + number + " b" + number + "='1'/>";
  }
  expect_taken("<r" + attributes + "/>");
  expect_taken("<r xmlns:p='u' xmlns:q='v'" + prefixed + "/>");
  expect_taken("<r>" + names + "</r>");
  BothRoads const repeated("<r" + attributes + " a77='1'/>");
  EXPECT_FALSE(repeated.scanned());
  EXPECT_FALSE(repeated.parsed());
}

TEST(axsParser, nests_a_million_levels)
{
  auto const nested = [](std::size_t levels)
  {
    std::string document;
    for (std::size_t i = 0; i < levels; ++i)
      document += "<a>";
    for (std::size_t i = 0; i < levels; ++i)
      document += "</a>";
    return document;
  };
  expect_taken(nested(100000));
  EXPECT_NE(load(nested(1000000)), nullptr);
}

// An error has its place, however much of the document was read before it.
TEST(axsParser, errors_have_their_place_however_much_was_read_before)
{
  std::string document = "<r>\n";
  for (int i = 0; i < 20000; ++i)
    document += "<a>text</a>\n";
  TestFile const file("scanner_error.xml", document + "<a>&nothing;</a></r>");
  axmParseError error;
  EXPECT_EQ(engine()->loadDocument(file.path(), axmLoadOptions(axmValidateNone), error), nullptr);
  EXPECT_EQ(error.line_number(), 20002);
  EXPECT_EQ(error.column_number(), 13);
  EXPECT_NE(narrow(error.message()).find("nothing"), std::string::npos) << narrow(error.message());
  EXPECT_EQ(narrow(error.url()), file.name);
}

TEST(axsParser, takes_the_samples)
{
  for (char const* const name : {"examples/books.xml", "examples/books.xsd", "examples/stations.xml",
         "examples/stations.xsd", "data/in_memory_test_schema.xsd"})
  {
    std::ifstream file(std::string(AXM_SOURCE) + '/' + name, std::ios::binary);
    expect_taken(std::string(std::istreambuf_iterator<char>(file), {}));
  }
}
