#include "axsLineEnds.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

using axsLineEnds::Rule;

std::ostream& operator<<(std::ostream& out, axsPlace const& place)
{
  return out << place.line << ':' << place.column;
}

namespace
{
std::size_t const before = axsLineEnds::bytes_before;

// The text with the zero bytes before it.
std::string padded(std::string_view text)
{
  return std::string(before, '\0').append(text);
}

axsPlace end_of(std::string_view text, Rule rule = Rule::xml_1_0)
{
  std::string const bytes = padded(text);
  return axsLineEnds::place_after({}, bytes.data() + before, bytes.data() + bytes.size(), rule);
}

// Reads character by character, as the recommendations put it.
std::vector<axsPlace> places_one_by_one(std::string_view text, Rule rule)
{
  std::vector<axsPlace> places;
  axsPlace place;
  char32_t last = 0;
  for (std::size_t i = 0; i < text.size();)
  {
    auto const first = static_cast<unsigned char>(text[i]);
    std::size_t const length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    for (std::size_t k = 0; k < length; ++k)
      places.push_back(place);
    char32_t code = length == 1 ? first : first & (0xFFu >> (length + 1));
    for (std::size_t k = 1; k < length; ++k)
      code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
    bool const is_new = rule == Rule::xml_1_1 && (code == 0x85 || code == 0x2028);
    bool const is_half = last == '\r' && (code == '\n' || (rule == Rule::xml_1_1 && code == 0x85));
    if (is_half)
      place.column = 1;
    else if (code == '\n' || code == '\r' || is_new)
      place = {place.line + 1, 1};
    else
      place.column += code > 0xFFFF ? 2 : 1;
    last = code;
    i += length;
  }
  places.push_back(place);
  return places;
}

bool begins_character(std::string_view text, std::size_t at)
{
  return at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
}
}

TEST(axsLineEnds, counts_the_line_ends_of_xml_1_0)
{
  EXPECT_EQ(end_of(""), (axsPlace{1, 1}));
  EXPECT_EQ(end_of("abc"), (axsPlace{1, 4}));
  EXPECT_EQ(end_of("a\nb"), (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\rb"), (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\r\nb"), (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\n\rb"), (axsPlace{3, 2}));
  EXPECT_EQ(end_of("\r\r\n\n"), (axsPlace{4, 1}));
  EXPECT_EQ(end_of("a\xC2\x85\xE2\x80\xA8"), (axsPlace{1, 4}));
}

TEST(axsLineEnds, counts_the_line_ends_of_xml_1_1)
{
  EXPECT_EQ(end_of("a\xC2\x85"
                   "b",
              Rule::xml_1_1),
    (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\xE2\x80\xA8"
                   "b",
              Rule::xml_1_1),
    (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\r\xC2\x85"
                   "b",
              Rule::xml_1_1),
    (axsPlace{2, 2}));
  EXPECT_EQ(end_of("a\r\xE2\x80\xA8"
                   "b",
              Rule::xml_1_1),
    (axsPlace{3, 2}));
  EXPECT_EQ(end_of("a\xC3\x85\xE2\x81\xA8", Rule::xml_1_1), (axsPlace{1, 4}));
}

TEST(axsLineEnds, columns_are_units_of_utf16)
{
  EXPECT_EQ(end_of("\xC3\xA4"), (axsPlace{1, 2}));
  EXPECT_EQ(end_of("\xE2\x82\xAC"), (axsPlace{1, 2}));
  EXPECT_EQ(end_of("\xF0\x9F\x98\x80"), (axsPlace{1, 3}));
}

TEST(axsLineEnds, counts_far)
{
  std::string lines;
  for (int i = 0; i < 100000; ++i)
    lines += "\n";
  EXPECT_EQ(end_of(lines), (axsPlace{100001, 1}));
  EXPECT_EQ(end_of(std::string(100000, 'x')), (axsPlace{1, 100001}));
  std::string wide;
  for (int i = 0; i < 10000; ++i)
    wide += "\xF0\x9F\x98\x80";
  EXPECT_EQ(end_of(wide), (axsPlace{1, 20001}));
}

// From any character to any other one, forward and back.
TEST(axsLineEnds, a_place_is_the_same_on_whatever_way)
{
  std::string const pieces[] = {"a", "\n", "\r", "\r\n", "\xC2\x85", "\r\xC2\x85", "\xE2\x80\xA8", "\xF0\x9F\x98\x80",
    "\xE2\x82\xA8", "\xC3\x85", "\n\r", "bcd"};
  unsigned int random = 1;
  for (int round = 0; round < 300; ++round)
  {
    std::string text;
    for (int i = 0; i < 14; ++i)
    {
      random = random * 1664525u + 1013904223u;
      text += pieces[(random >> 16) % 12];
    }
    std::string const bytes = padded(text);
    char const* const begin = bytes.data() + before;
    for (Rule const rule : {Rule::xml_1_0, Rule::xml_1_1})
    {
      std::vector<axsPlace> const places = places_one_by_one(text, rule);
      for (std::size_t from = 0; from <= text.size(); ++from)
        for (std::size_t to = 0; to <= text.size(); ++to)
        {
          if (!begins_character(text, from) || !begins_character(text, to))
            continue;
          axsPlace const place = from <= to
                                   ? axsLineEnds::place_after(places[from], begin + from, begin + to, rule)
                                   : axsLineEnds::place_before({}, begin, places[from], begin + from, begin + to, rule);
          ASSERT_EQ(place, places[to]) << from << " to " << to << " in " << testing::PrintToString(text);
        }
    }
  }
}
