#include <axsUtf8Scan.h>
#include <utUtf8.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>

namespace
{
using axsUtf8Scan::chunk;
using axsUtf8Scan::Seen;
using axsUtf8Scan::Way;

class axsUtf8Scan_ways : public testing::TestWithParam<Way>
{
protected:
  static std::ptrdiff_t skipped(std::string const& bytes)
  {
    Seen seen;
    return GetParam()(bytes.data(), bytes.data() + bytes.size(), seen) - bytes.data();
  }

  static bool finds_excluded(std::string const& bytes)
  {
    Seen seen;
    GetParam()(bytes.data(), bytes.data() + bytes.size(), seen);
    return seen.has_excluded;
  }

  // The end of whole characters, one after the other; -1 if something is wrong.
  static std::ptrdiff_t end_of_whole(std::string_view bytes)
  {
    char const* const end = bytes.data() + bytes.size();
    char const* at = bytes.data();
    while (at != end)
    {
      utCodePoint const character = utUtf8::decode(at, end);
      if (character.is_cut_off())
        break;
      if (*at == '\0' || !character.is_valid())
        return -1;
      at += character.length;
    }
    return at - bytes.data();
  }

  // Of as many chunks as have nothing wrong in them.
  static std::ptrdiff_t expected(std::string_view bytes)
  {
    std::size_t size = bytes.size() - bytes.size() % chunk;
    while (end_of_whole(bytes.substr(0, size)) < 0)
      size -= chunk;
    return end_of_whole(bytes.substr(0, size));
  }

  static void expect_as_expected(std::string const& bytes)
  {
    ASSERT_EQ(skipped(bytes), expected(bytes)) << testing::PrintToString(bytes);
  }
};

std::string const ways[] = {"words", "blocks", "fastest"};

// Bytes at the borders of what The Unicode Standard has in table 3-7.
std::string const borders(
  "\0\x01\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xFF", 25);
}

TEST_P(axsUtf8Scan_ways, moves_over_every_character)
{
  std::string text;
  for (char32_t code = 1; code <= 0x10FFFF; ++code)
    if (code < 0xD800 || code > 0xDFFF)
      utUtf8::append(code, text);
  std::ptrdiff_t const size = skipped(text);
  EXPECT_EQ(size, expected(text));
  EXPECT_GE(size, static_cast<std::ptrdiff_t>(text.size()) - chunk - 2);
}

TEST_P(axsUtf8Scan_ways, four_bytes_at_the_borders_are_judged_alike_at_each_place)
{
  for (char const first : borders)
    for (char const second : borders)
      for (char const third : {'a', '\x7F', '\x80', '\xBF', '\xC2'})
        for (char const fourth : {'a', '\x80', '\xBF', '\xE1'})
          for (std::size_t const place : {0u, 6u, 15u, 31u, 60u, 61u, 62u, 63u, 64u, 124u, 125u, 126u, 127u})
            for (char const* const before : {"", "\xC2\x80", "\xE1\x80\x80", "\xF1\x80\x80\x80"})
            {
              std::string bytes(2 * chunk, 'a');
              bytes.replace(0, std::strlen(before), before);
              char const four[] = {first, second, third, fourth};
              for (std::size_t i = 0; i < 4 && place + i < bytes.size(); ++i)
                bytes[place + i] = four[i];
              expect_as_expected(bytes);
            }
}

TEST_P(axsUtf8Scan_ways, drawn_bytes_are_judged_alike)
{
  std::mt19937 draw(1);
  std::string text;
  while (text.size() < 4096)
    utUtf8::append(std::u32string(U"aé€中\xD7FF\xE000\xFFFD\x10000\x10FFFF")[draw() % 9], text);
  for (int i = 0; i < 200000; ++i)
  {
    // Begins at any byte, most often at a character.
    std::size_t at = draw() % (text.size() - 3 * chunk);
    while (i % 8 != 0 && utUtf8::is_continuation(text[at]))
      --at;
    std::string bytes = text.substr(at, 3 * chunk);
    if (draw() % 2 == 0)
      bytes[draw() % bytes.size()] = borders[draw() % borders.size()];
    expect_as_expected(bytes);
  }
}

TEST_P(axsUtf8Scan_ways, characters_that_xml_excludes_are_found_wherever_they_stand)
{
  for (char32_t code = 0x80; code <= 0x10FFFF; code += code == 0xD7FF ? 0x801 : code < 0x10000 ? 1 : 0x3FF)
    for (std::size_t const place : {0u, 13u, 61u, 62u, 63u, 64u})
    {
      std::string bytes(2 * chunk, 'a');
      std::string character;
      utUtf8::append(code, character);
      bytes.replace(place, character.size(), character);
      ASSERT_EQ(finds_excluded(bytes), code == 0xFFFE || code == 0xFFFF) << code << " at " << place;
    }
}

TEST_P(axsUtf8Scan_ways, line_ends_are_counted_wherever_a_text_is_parted)
{
  std::mt19937 draw(2);
  for (int i = 0; i < 20000; ++i)
  {
    std::string text;
    while (text.size() < 4 * chunk)
      utUtf8::append(std::u32string(U"\r\n\r\nab\x85中")[draw() % 8], text);
    std::uint64_t line_ends = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
      line_ends += text[at] == '\r' || (text[at] == '\n' && (at == 0 || text[at - 1] != '\r')) ? 1 : 0;

    Seen seen;
    char const* at = text.data();
    char const* const end = text.data() + text.size();
    while (at != end)
    {
      char const* const part = std::min(end, at + draw() % (3 * chunk));
      at = GetParam()(at, part, seen);
      // As many characters as bytes more may be left of a part.
      for (int left = 0; left < chunk && at != end; ++left)
      {
        utCodePoint const character = utUtf8::decode(at, end);
        seen.add(character.code);
        at += character.length;
      }
    }
    ASSERT_EQ(seen.line_ends, line_ends) << testing::PrintToString(text);
    ASSERT_EQ(seen.ends_with_return, text.back() == '\r');
  }
}

TEST_P(axsUtf8Scan_ways, what_does_not_fill_a_chunk_is_left)
{
  for (std::size_t size = 0; size < static_cast<std::size_t>(chunk); ++size)
    EXPECT_EQ(skipped(std::string(size, 'a')), 0);
  EXPECT_EQ(skipped(std::string(3 * chunk - 1, 'a')), 2 * chunk);
}

INSTANTIATE_TEST_SUITE_P(axsUtf8Scan, axsUtf8Scan_ways,
  testing::Values(axsUtf8Scan::skip_by_words, axsUtf8Scan::skip_by_blocks, axsUtf8Scan::fastest()),
  [](testing::TestParamInfo<Way> const& way) { return ways[way.index]; });
