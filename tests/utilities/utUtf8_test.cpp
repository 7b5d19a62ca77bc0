#include <utUtf8.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{
// The Unicode Standard, table 3-7, Well-Formed UTF-8 Byte Sequences: the bytes that may stand at each place.
struct Row
{
  struct
  {
    int first;
    int last;
  } places[4];
  std::size_t length;
};

Row const rows[] = {{{{0, 0x7F}, {}, {}, {}}, 1}, {{{0xC2, 0xDF}, {0x80, 0xBF}, {}, {}}, 2},
  {{{0xE0, 0xE0}, {0xA0, 0xBF}, {0x80, 0xBF}, {}}, 3}, {{{0xE1, 0xEC}, {0x80, 0xBF}, {0x80, 0xBF}, {}}, 3},
  {{{0xED, 0xED}, {0x80, 0x9F}, {0x80, 0xBF}, {}}, 3}, {{{0xEE, 0xEF}, {0x80, 0xBF}, {0x80, 0xBF}, {}}, 3},
  {{{0xF0, 0xF0}, {0x90, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}, 4},
  {{{0xF1, 0xF3}, {0x80, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}, 4},
  {{{0xF4, 0xF4}, {0x80, 0x8F}, {0x80, 0xBF}, {0x80, 0xBF}}, 4}};

// How much of `bytes` a row allows, and whether that is all of a sequence.
std::size_t agreement(Row const& row, std::string const& bytes)
{
  std::size_t length = 0;
  while (length < std::min(row.length, bytes.size()))
  {
    int const byte = static_cast<unsigned char>(bytes[length]);
    if (byte < row.places[length].first || byte > row.places[length].last)
      break;
    ++length;
  }
  return length;
}

void expect_as_in_the_table(std::string const& bytes)
{
  std::size_t longest = 0;
  bool is_whole = false;
  for (Row const& row : rows)
  {
    std::size_t const length = agreement(row, bytes);
    longest = std::max(longest, length);
    is_whole = is_whole || length == row.length;
  }
  // On its own in memory, so that a read beyond the end is found.
  std::vector<char> const alone(bytes.begin(), bytes.end());
  utCodePoint const found = utUtf8::decode(alone.data(), alone.data() + alone.size());
  ASSERT_EQ(found.is_valid(), is_whole) << testing::PrintToString(bytes);
  ASSERT_EQ(found.length, std::max<std::size_t>(longest, 1)) << testing::PrintToString(bytes);
  ASSERT_EQ(found.is_cut_off(), !is_whole && longest == bytes.size()) << testing::PrintToString(bytes);
  if (is_whole)
  {
    std::string again;
    utUtf8::append(found.code, again);
    ASSERT_EQ(again, bytes.substr(0, longest));
    ASSERT_EQ(utUtf8::encoded_length(found.code), longest);
    ASSERT_EQ(utUtf8::length_from_first(bytes[0]), longest);
  }
}

unsigned char const edges[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1,
  0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};
}

TEST(utUtf8_, decodes_what_the_table_of_well_formed_sequences_has_and_says_how_far_others_go)
{
  for (int a = 0; a < 256; ++a)
  {
    expect_as_in_the_table({static_cast<char>(a)});
    for (int b = 0; b < 256; ++b)
    {
      std::string const two = {static_cast<char>(a), static_cast<char>(b)};
      expect_as_in_the_table(two);
      for (unsigned char const c : edges)
      {
        expect_as_in_the_table(two + static_cast<char>(c));
        for (unsigned char const d : edges)
          if (a >= 0xE0) // before them, at most two bytes are looked at
            expect_as_in_the_table(two + static_cast<char>(c) + static_cast<char>(d));
      }
    }
  }
}

TEST(utUtf8_, encodes_every_code_point_so_that_it_is_decoded_again)
{
  for (char32_t code = 0; code <= utCodePoint::last; ++code)
  {
    if (code == 0xD800)
      code = 0xE000;
    char bytes[utUtf8::max_bytes];
    char* const end = utUtf8::encode(code, bytes);
    ASSERT_EQ(utUtf8::decode(bytes, end).code, code);
    ASSERT_EQ(utUtf8::decode(bytes, end).length, end - bytes);
  }
}

TEST(utUtf8_, finds_the_first_place_that_is_ill_formed)
{
  for (std::size_t before = 0; before < 40; ++before)
    for (std::string const wrong : {"\xFF", "\x80", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xC3"})
      for (std::string const after : {"", "a", "\xC3\xA4 and more than eight"})
      {
        std::string const text = std::string(before, 'a') + "\xE2\x82\xAC";
        EXPECT_EQ(utUtf8::find_ill_formed(text), std::string::npos);
        EXPECT_EQ(utUtf8::find_ill_formed(text + wrong + after), text.size()) << before;
      }
  EXPECT_EQ(utUtf8::find_ill_formed({}), std::string::npos);
}

TEST(utUtf8_, counts_code_points)
{
  EXPECT_EQ(utUtf8::count(""), 0u);
  EXPECT_EQ(utUtf8::count("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"), 4u);
}
