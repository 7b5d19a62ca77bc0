// Which encoding an entity is found to be in, and what is said of those that contradict themselves.

#include "axsEncoding.h"

#include "axsEncodingName.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_literals;

namespace
{
// Each character of ASCII as a unit of `size` bytes.
std::string units(std::string_view text, std::size_t size, bool is_big)
{
  std::string made;
  for (char const c : text)
  {
    std::string unit(size, '\0');
    unit[is_big ? size - 1 : 0] = c;
    made += unit;
  }
  return made;
}

std::string declaring(std::string_view name)
{
  return "<?xml version='1.0' encoding='" + std::string(name) + "'?><r/>";
}

// The name, the bytes of the mark and "declared", or the error with its place.
std::string found_in(std::string_view head)
try
{
  axsEncoding const encoding = axsEncoding::of(head, APSTRING("a.xml"));
  return encoding.name + ' ' + std::to_string(encoding.mark_size) + (encoding.is_declared ? " declared" : "");
}
catch (axsReadError const& error)
{
  return std::to_string(error.line) + ':' + std::to_string(error.column) + ' ' + error.message.to_utf8().c_str();
}

std::string contradiction(std::string_view name)
{
  return "1:31 the encoding is declared as '" + std::string(name) + "', but the bytes are in another one";
}

std::string const no_mark = ", but has neither a byte-order mark nor a declaration that says so";
std::string const unusual = "1:1 The bytes of the document's characters are in an unusual order, which is not read";
}

TEST(axsEncoding, is_utf8_without_a_word)
{
  for (std::string const text :
    {"<r/>", "", "x", "<?xml version='1.0'?><r/>", " <?xml version='1.0' encoding='UTF-16'?>",
      "<?xmlx encoding='UTF-16'?>", "<r encoding='UTF-16'/>", "\xC3\xA4"})
    EXPECT_EQ(found_in(text), "UTF-8 0") << text;
}

TEST(axsEncoding, shows_in_a_mark)
{
  EXPECT_EQ(found_in("\xEF\xBB\xBF<r/>"), "UTF-8 3");
  EXPECT_EQ(found_in("\xFE\xFF" + units("<r/>", 2, true)), "UTF-16BE 2");
  EXPECT_EQ(found_in("\xFF\xFE" + units("<r/>", 2, false)), "UTF-16LE 2");
  EXPECT_EQ(found_in("\0\0\xFE\xFF"s + units("<r/>", 4, true)), "UTF-32BE 4");
  EXPECT_EQ(found_in("\xFF\xFE\0\0"s + units("<r/>", 4, false)), "UTF-32LE 4");
}

TEST(axsEncoding, of_wide_units_shows_in_the_first_ones_and_is_declared)
{
  EXPECT_EQ(found_in(units(declaring("UTF-16"), 2, true)), "UTF-16BE 0 declared");
  EXPECT_EQ(found_in(units(declaring("UTF-16"), 2, false)), "UTF-16LE 0 declared");
  EXPECT_EQ(found_in(units(declaring("utf-16le"), 2, false)), "UTF-16LE 0 declared");
  EXPECT_EQ(found_in(units(declaring("ISO-10646-UCS-4"), 4, true)), "UTF-32BE 0 declared");
  EXPECT_EQ(found_in(units(declaring("UTF-32LE"), 4, false)), "UTF-32LE 0 declared");
  EXPECT_EQ(found_in("\xFE\xFF" + units(declaring("ISO-10646-UCS-2"), 2, true)), "UTF-16BE 2 declared");
  EXPECT_EQ(found_in("\xFE\xFF" + units(declaring("UTF-16BE"), 2, true)), "UTF-16BE 2 declared");
}

TEST(axsEncoding, of_wide_units_without_mark_and_declaration_is_refused)
{
  EXPECT_EQ(found_in(units("<r/>", 2, true)), "1:1 The document is in UTF-16BE" + no_mark);
  EXPECT_EQ(found_in(units("<?xml version='1.0'?><r/>", 2, false)), "1:1 The document is in UTF-16LE" + no_mark);
  EXPECT_EQ(found_in(units("<r/>", 4, true)), "1:1 The document is in UTF-32BE" + no_mark);
}

TEST(axsEncoding, in_an_unusual_order_of_bytes_is_refused)
{
  EXPECT_EQ(found_in("\0\0\xFF\xFE\0\0<\0"s), unusual);
  EXPECT_EQ(found_in("\xFE\xFF\0\0\0<\0\0"s), unusual);
  EXPECT_EQ(found_in("\0\0<\0\0\0?\0"s), unusual);
  EXPECT_EQ(found_in("\0<\0\0\0?\0\0"s), unusual);
}

TEST(axsEncoding, is_what_the_declaration_says)
{
  EXPECT_EQ(found_in(declaring("utf-8")), "UTF-8 0 declared");
  EXPECT_EQ(found_in("\xEF\xBB\xBF" + declaring("UTF8")), "UTF-8 3 declared");
  EXPECT_EQ(found_in(declaring("us-ascii")), "US-ASCII 0 declared");
  EXPECT_EQ(found_in(declaring("Latin1")), "ISO-8859-1 0 declared");
  EXPECT_EQ(found_in(declaring("cp1252")), "windows-1252 0 declared");
  EXPECT_EQ(found_in("<?xml\t\r\nversion\n=\n\"1.0\"\tencoding =\r\n\"koi8-r\"standalone"), "KOI8-R 0 declared");
  // Of an entity.
  EXPECT_EQ(found_in("<?xml encoding='ISO-8859-15'?>text"), "ISO-8859-15 0 declared");
}

TEST(axsEncoding, declared_in_another_one_is_refused_with_its_place)
{
  for (char const* const name : {"UTF-16", "UTF-16LE", "utf-32", "ISO-10646-UCS-2"})
    EXPECT_EQ(found_in(declaring(name)), contradiction(name));
  for (char const* const name : {"UTF-8", "UTF-16BE", "UTF-32", "ISO-8859-1", "no-such-one"})
    EXPECT_EQ(found_in("\xFF\xFE" + units(declaring(name), 2, false)), contradiction(name));
  for (char const* const name : {"US-ASCII", "ISO-8859-1", "UTF-16"})
    EXPECT_EQ(found_in("\xEF\xBB\xBF" + declaring(name)), contradiction(name));
  EXPECT_EQ(found_in("<?xml version='1.0'\n  encoding='UTF-16'?>").substr(0, 5), "2:13 ");
}

TEST(axsEncoding, that_is_not_known_is_named)
{
  EXPECT_EQ(found_in(declaring("Klingon")), "1:31 the encoding 'Klingon' is not known");
  EXPECT_EQ(found_in(declaring("WCHAR_T")).find("1:31 the encoding "), 0u);
}

// The parser tells of it.
TEST(axsEncoding, is_not_looked_for_in_what_is_no_declaration)
{
  for (char const* const text : {"<?xml version='1.0' encoding=''?>", "<?xml version='1.0' encoding='a b'?>",
         "<?xml version='1.0' encoding='UTF-16?>", "<?xml version='1.0'encoding='UTF-16'?>",
         "<?xml version=1.0 encoding='UTF-16'?>", "<?xml version='1.0' encoding='8859'?>",
         "<?xml version='1.0' encoding UTF-16?>"})
    EXPECT_EQ(found_in(text), "UTF-8 0") << text;
}

#if !defined(_WIN32)
TEST(axsEncoding, like_ebcdic_is_read_as_far_as_its_declaration)
{
  // "<?xml version='1.0' encoding='IBM037'?>"
  std::string const begin =
    "\x4C\x6F\xA7\x94\x93\x40\xA5\x85\x99\xA2\x89\x96\x95\x7E\x7D\xF1\x4B\xF0\x7D\x40\x85\x95\x83"
    "\x96\x84\x89\x95\x87\x7E\x7D";
  std::string const end = "\x7D\x6F\x6E";
  EXPECT_EQ(found_in(begin + "\xC9\xC2\xD4\xF0\xF3\xF7" + end), "IBM037 0 declared");
  // "UTF-8"
  EXPECT_EQ(found_in(begin + "\xE4\xE3\xC6\x60\xF8" + end), contradiction("UTF-8"));
  EXPECT_EQ(found_in("\x4C\x6F\xA7\x94\x93\x6F\x6E"), "1:1 The document is in EBCDIC" + no_mark);
  EXPECT_EQ(found_in(declaring("IBM037")), contradiction("IBM037"));
}
#endif

TEST(axsEncodingName, has_many_spellings)
{
  for (char const* const name : {"iso-8859-1", "ISO_8859-1", "iso8859-1", "LATIN1", "l1", "csISOLatin1", "IBM819"})
    EXPECT_EQ(axsEncodingName::preferred(name), "ISO-8859-1") << name;
  EXPECT_EQ(axsEncodingName::preferred("ISO-8859-15"), "ISO-8859-15");
  EXPECT_EQ(axsEncodingName::preferred("Shift_JIS"), "Shift_JIS");
}

TEST(axsEncodingName, is_a_letter_and_what_else_names_have)
{
  for (char const* const name : {"a", "UTF-8", "x.y_z-1"})
    EXPECT_TRUE(axsEncodingName::is_name(name)) << name;
  for (char const* const name : {"", "8859-1", "-a", "a b", "a:b", "a/b", "\xC3\xA4"})
    EXPECT_FALSE(axsEncodingName::is_name(name)) << name;
}
