#include "axsCharacters.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// Of a text as the scanner has it: a zero byte after it, and after that whatever.
std::string padded(std::string const& text)
{
  return text + '\0' + std::string(apByteBlock::size, '<');
}

template <class Behind>
std::size_t length(std::string const& text, Behind behind)
{
  std::string const bytes = padded(text);
  return static_cast<std::size_t>(behind(bytes.data()) - bytes.data());
}

// The Unicode Standard, table 3-7, Well-Formed UTF-8 Byte Sequences: how long the one at the start is, 0 if it is none.
std::size_t well_formed(unsigned char a, unsigned char b, unsigned char c, unsigned char d)
{
  auto const in = [](unsigned char byte, int first, int last) { return byte >= first && byte <= last; };
  if (in(a, 0, 0x7F))
    return 1;
  if (in(a, 0xC2, 0xDF) && in(b, 0x80, 0xBF))
    return 2;
  bool const c_follows = in(c, 0x80, 0xBF);
  if (((a == 0xE0 && in(b, 0xA0, 0xBF)) || ((in(a, 0xE1, 0xEC) || in(a, 0xEE, 0xEF)) && in(b, 0x80, 0xBF)) ||
        (a == 0xED && in(b, 0x80, 0x9F))) &&
      c_follows)
    return 3;
  if (((a == 0xF0 && in(b, 0x90, 0xBF)) || (in(a, 0xF1, 0xF3) && in(b, 0x80, 0xBF)) ||
        (a == 0xF4 && in(b, 0x80, 0x8F))) &&
      c_follows && in(d, 0x80, 0xBF))
    return 4;
  return 0;
}

// XML 1.0, 2.2: the characters of UTF-8 without most controls and without U+FFFE and U+FFFF.
std::size_t character_length(unsigned char a, unsigned char b, unsigned char c, unsigned char d)
{
  if ((a < 0x20 && a != '\t' && a != '\n' && a != '\r') || (a == 0xEF && b == 0xBF && c >= 0xBE))
    return 0;
  return well_formed(a, b, c, d);
}
}

TEST(axsCharacters, reads_utf8_and_nothing_else)
{
  unsigned char const bytes[] = {0x00, 0x09, 0x0B, 0x1F, 0x20, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBD, 0xBE,
    0xBF, 0xC0, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xF7, 0xF8, 0xFC,
    0xFF};
  for (unsigned char const a : bytes)
    for (unsigned char const b : bytes)
      for (unsigned char const c : bytes)
        for (unsigned char const d : bytes)
        {
          char const sequence[] = {
            static_cast<char>(a), static_cast<char>(b), static_cast<char>(c), static_cast<char>(d)};
          ASSERT_EQ(axsCharacters::character(sequence).length, character_length(a, b, c, d))
            << std::hex << int(a) << ' ' << int(b) << ' ' << int(c) << ' ' << int(d);
        }
  EXPECT_EQ(axsCharacters::character("\xC3\xA4").code, 0xE4u);
  EXPECT_EQ(axsCharacters::character("\xE2\x82\xAC").code, 0x20ACu);
  EXPECT_EQ(axsCharacters::character("\xF4\x8F\xBF\xBF").code, 0x10FFFFu);
}

TEST(axsCharacters, finds_the_end_of_a_name)
{
  for (auto const& [text, expected] :
    {std::pair<char const*, std::size_t>{"", 0}, {" a", 0}, {"-a", 0}, {"1a", 0}, {".a", 0}, {"a", 1}, {"_:a-1.b=", 7},
      {"a/", 1}, {"\xC3\xA4\xC3\x84\xC2\xB7z>", 7}, {"a\xC2\xB7>", 3}, {"\xC2\xB7", 0}, {"a\xC3\x97", 1}, {"a\xC3>", 1},
      {"\xC3", 0}, {"\xF0\x90\x80\x80", 4}, {"a\xF3\xAF\xBF\xBF>", 5}, {"a\xF3\xB0\x80\x80", 1}, {"a\xFF", 1}})
    EXPECT_EQ(length(text, axsCharacters::end_of_name), expected) << text;
}

TEST(axsCharacters, finds_the_end_of_what_is_plain)
{
  auto const text = [](char const* at) { return axsCharacters::end_of_text<apByteBlock, '<', ']'>(at); };
  auto const text_by_words = [](char const* at) { return axsCharacters::end_of_text<apWordBlock, '<', ']'>(at); };
  auto const value = [](char const* at) { return axsCharacters::end_of_value(at, '"'); };
  auto const value_by_words = [](char const* at) { return axsCharacters::end_of_value<apWordBlock>(at, '"'); };
  for (std::size_t plain = 0; plain < 40; ++plain)
  {
    std::string const begin = std::string(plain, ' ');
    for (std::string const end : {"<  ", "] ", "\xC3\xA4  ", "\r", "\x1F", ""})
    {
      EXPECT_EQ(length(begin + "\t\n>&'\x7F" + end, text), plain + 6);
      EXPECT_EQ(length(begin + "\t\n>&'\x7F" + end, text_by_words), plain + 6);
    }
    for (std::string const end : {"\"", "<", "&", "\t", "\n", "\r", "\xC3\xA4", "\x1F", ""})
    {
      EXPECT_EQ(length(begin + "]>'\x7F" + end, value), plain + 4);
      EXPECT_EQ(length(begin + "]>'\x7F" + end, value_by_words), plain + 4);
    }
  }
}

TEST(axsCharacters, finds_the_end_of_what_is_plain_in_text_that_is_known_to_be_utf8)
{
  auto const text = [](char const* at) { return axsCharacters::end_of_utf8_text<apByteBlock, '<', ']'>(at); };
  auto const text_by_words = [](char const* at) { return axsCharacters::end_of_utf8_text<apWordBlock, '<', ']'>(at); };
  auto const value = [](char const* at) { return axsCharacters::end_of_utf8_value(at, '"'); };
  auto const value_by_words = [](char const* at) { return axsCharacters::end_of_utf8_value<apWordBlock>(at, '"'); };
  std::string const characters = "\xC3\xA4\xC2\x85\xE2\x80\xA8\xEE\x80\x80\xEF\xBC\x8C\xF0\x90\x80\x80\x7F";
  for (std::size_t plain = 0; plain < 40; ++plain)
  {
    std::string const begin = std::string(plain, ' ') + characters;
    for (std::string const end : {"<  ", "] ", "\r", "\x1F", ""})
    {
      EXPECT_EQ(length(begin + "\t\n>&" + end, text), begin.size() + 4);
      EXPECT_EQ(length(begin + "\t\n>&" + end, text_by_words), begin.size() + 4);
    }
    for (std::string const end : {"\"", "<", "&", "\t", "\n", "\r", "\x1F", ""})
    {
      EXPECT_EQ(length(begin + "]>'" + end, value), begin.size() + 3);
      EXPECT_EQ(length(begin + "]>'" + end, value_by_words), begin.size() + 3);
    }
  }
}
