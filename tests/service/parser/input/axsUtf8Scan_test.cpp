#include <axsUtf8Scan.h>
#include <utUtf8.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
using axsUtf8Scan::chunk;
using axsUtf8Scan::Way;

class axsUtf8Scan_ways : public testing::TestWithParam<Way>
{
protected:
  static std::ptrdiff_t skipped(std::string const& bytes)
  {
    return GetParam()(bytes.data(), bytes.data() + bytes.size()) - bytes.data();
  }

  // What it should be of one chunk, character by character.
  static std::ptrdiff_t expected(std::string const& bytes)
  {
    char const* const end = bytes.data() + bytes.size();
    char const* at = bytes.data();
    while (at != end)
    {
      utCodePoint const character = utUtf8::decode(at, end);
      if (*at == '\0' || (!character.is_valid() && !character.is_cut_off()))
        return 0;
      if (character.is_cut_off())
        break;
      at += character.length;
    }
    return at - bytes.data();
  }

  static void expect_as_expected(std::string const& bytes)
  {
    ASSERT_EQ(bytes.size(), static_cast<std::size_t>(chunk));
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
  EXPECT_LT(static_cast<std::ptrdiff_t>(text.size()) - size, chunk);
  EXPECT_FALSE(utUtf8::is_continuation(text[static_cast<std::size_t>(size)]));
}

TEST_P(axsUtf8Scan_ways, four_bytes_at_the_borders_are_judged_alike_at_each_place)
{
  for (char const first : borders)
    for (char const second : borders)
      for (char const third : {'a', '\x7F', '\x80', '\xBF', '\xC2'})
        for (char const fourth : {'a', '\x80', '\xBF', '\xE1'})
          for (std::size_t const place :
            {0u, 6u, 7u, 8u, 14u, 15u, 16u, 29u, 30u, 31u, 32u, 45u, 59u, 60u, 61u, 62u, 63u})
          {
            std::string bytes(chunk, 'a');
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
    std::size_t at = draw() % (text.size() - chunk);
    while (i % 8 != 0 && utUtf8::is_continuation(text[at]))
      --at;
    std::string bytes = text.substr(at, chunk);
    if (draw() % 2 == 0)
      bytes[draw() % chunk] = borders[draw() % borders.size()];
    expect_as_expected(bytes);
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
