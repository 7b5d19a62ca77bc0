#include "../slots.h"

#include <axmAbstractXmlReader.h>

#include <gtest/gtest.h>

#include <sstream>
#include <type_traits>

namespace
{
// The least that a reader can be, with the protected operations opened.
class LeastReader : public axmAbstractXmlReader
{
public:
  bool read_file() override { return false; }
  void up() override {}
  bool down_to(utString const&) override { return false; }
  utString attribute(utString const&, utString const&) override { return utString(); }
  utString text_node() override { return utString(); }
  bool has_error_occurred() const override { return false; }

  using axmAbstractXmlReader::is_safe_ascii;
  using axmAbstractXmlReader::matches_utf16;
  using axmAbstractXmlReader::matches_utf8;

  static int slot_of_matches_utf8() { return slot_of(&LeastReader::matches_utf8); }
  static int slot_of_matches_utf16() { return slot_of(&LeastReader::matches_utf16); }
  static int slot_of_is_safe_ascii() { return slot_of(&LeastReader::is_safe_ascii); }
};
}

TEST(axmAbstractXmlReader, operations_have_their_slots)
{
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::read_file), 0);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::encoding), 1);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::up), 2);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::down_to), 3);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::attribute), 4);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::text_node), 5);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::has_error_occurred), 6);
  EXPECT_EQ(slot_of(&axmAbstractXmlReader::dump_error), 7);
  // 8 and 9 are the destructor's.
  EXPECT_EQ(LeastReader::slot_of_matches_utf8(), 10);
  EXPECT_EQ(LeastReader::slot_of_matches_utf16(), 11);
  EXPECT_EQ(LeastReader::slot_of_is_safe_ascii(), 12);
}

TEST(axmAbstractXmlReader, is_an_interface_without_data)
{
  EXPECT_EQ(sizeof(axmAbstractXmlReader), sizeof(void*));
  EXPECT_TRUE(std::is_abstract_v<axmAbstractXmlReader>);
  EXPECT_TRUE(std::has_virtual_destructor_v<axmAbstractXmlReader>);
  EXPECT_FALSE(std::is_default_constructible_v<axmAbstractXmlReader>);
}

TEST(axmAbstractXmlReader, encoding_is_unknown_where_it_is_not_overridden)
{
  EXPECT_STREQ(LeastReader().encoding().c_str(), "Unknown");
}

TEST(axmAbstractXmlReader, dump_error_writes_nothing_where_it_is_not_overridden)
{
  std::ostringstream out;
  LeastReader().dump_error(out);
  EXPECT_EQ(out.str(), "");
}

TEST(axmAbstractXmlReader, matches_utf8_knows_four_spellings)
{
  LeastReader reader;
  for (char const* const name : {"UTF-8", "utf-8", "UTF8", "utf8"})
    EXPECT_TRUE(reader.matches_utf8(ut_lit(name))) << name;
  for (char const* const name : {"Utf8", "Utf-8", "utf_8", "UTF-16", "utf-8 ", ""})
    EXPECT_FALSE(reader.matches_utf8(ut_lit(name))) << name;
  EXPECT_FALSE(reader.matches_utf8(utString()));
}

TEST(axmAbstractXmlReader, matches_utf16_knows_four_spellings)
{
  LeastReader reader;
  for (char const* const name : {"UTF-16", "utf-16", "UTF16", "utf16"})
    EXPECT_TRUE(reader.matches_utf16(ut_lit(name))) << name;
  for (char const* const name : {"Utf16", "Utf-16", "utf_16", "UTF-8", "UTF-16LE", ""})
    EXPECT_FALSE(reader.matches_utf16(ut_lit(name))) << name;
  EXPECT_FALSE(reader.matches_utf16(utString()));
}

TEST(axmAbstractXmlReader, matching_ends_at_the_first_nul)
{
  LeastReader reader;
  EXPECT_TRUE(reader.matches_utf8(utString("utf8\0x", 6)));
  EXPECT_TRUE(reader.matches_utf16(utString("utf16\0x", 7)));
}

TEST(axmAbstractXmlReader, is_safe_ascii_for_every_byte)
{
  LeastReader reader;
  for (int code = 0; code < 256; ++code)
  {
    char const text[] = {'a', static_cast<char>(code), 'b'};
    bool const safe = code < 0x80 && code != 0x5C && code != 0x7B && code != 0x7D;
    EXPECT_EQ(reader.is_safe_ascii(utString(text, 3)), safe) << code;
  }
}

TEST(axmAbstractXmlReader, is_safe_ascii_of_whole_texts)
{
  LeastReader reader;
  EXPECT_TRUE(reader.is_safe_ascii(utString()));
  EXPECT_TRUE(reader.is_safe_ascii(ut_lit("")));
  EXPECT_TRUE(reader.is_safe_ascii(ut_lit("\t\n\t")));
  EXPECT_FALSE(reader.is_safe_ascii(ut_lit("a{b")));
  EXPECT_FALSE(reader.is_safe_ascii(ut_lit("C:\\a")));
  EXPECT_FALSE(reader.is_safe_ascii(ut_lit("\xC3\xA4")));
  EXPECT_FALSE(reader.is_safe_ascii(utString("a\0}", 3)));
}
