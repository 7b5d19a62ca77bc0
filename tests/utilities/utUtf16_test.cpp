#include <utUtf16.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

TEST(utUtf16_, encodes_every_code_point_so_that_it_is_decoded_again)
{
  for (char32_t code = 0; code <= utCodePoint::last; ++code)
  {
    if (code == 0xD800)
      code = 0xE000;
    char16_t units[2];
    char16_t* const end = utUtf16::encode(code, units);
    utCodePoint const found = utUtf16::decode(units, end);
    ASSERT_EQ(found.code, code);
    ASSERT_EQ(found.length, end - units);
    ASSERT_EQ(utUtf16::encoded_length(code), static_cast<std::size_t>(end - units));
  }
}

TEST(utUtf16_, surrogates_are_told_from_their_neighbours)
{
  struct Row
  {
    char32_t unit;
    bool is_high;
    bool is_low;
  };
  for (Row const& row : {Row{0xD7FF, false, false}, Row{0xD800, true, false}, Row{0xDBFF, true, false},
         Row{0xDC00, false, true}, Row{0xDFFF, false, true}, Row{0xE000, false, false}})
  {
    EXPECT_EQ(utUtf16::is_high_surrogate(row.unit), row.is_high) << std::hex << std::uint32_t{row.unit};
    EXPECT_EQ(utUtf16::is_low_surrogate(row.unit), row.is_low) << std::hex << std::uint32_t{row.unit};
    EXPECT_EQ(utUtf16::is_surrogate(row.unit), row.is_high || row.is_low) << std::hex << std::uint32_t{row.unit};
  }
}

TEST(utUtf16_, a_surrogate_without_its_other_half_is_ill_formed)
{
  for (std::u16string const& text : {std::u16string{0xDC00}, std::u16string{0xDC00, 0xD800},
         std::u16string{0xD800, 0xD800}, std::u16string{0xDBFF, 'a'}, std::u16string{0xD800, 0xE000}})
  {
    utCodePoint const found = utUtf16::decode(text.data(), text.data() + text.size());
    EXPECT_EQ(found.code, utCodePoint::ill_formed);
    EXPECT_EQ(found.length, 1u);
    EXPECT_EQ(found.or_replacement(), 0xFFFDu);
  }
}

TEST(utUtf16_, a_high_surrogate_at_the_end_is_cut_off)
{
  char16_t const unit = 0xDBFF;
  utCodePoint const found = utUtf16::decode(&unit, &unit + 1);
  EXPECT_TRUE(found.is_cut_off());
  EXPECT_EQ(found.length, 1u);
}
