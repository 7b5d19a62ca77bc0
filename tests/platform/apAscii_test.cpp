#include <apAscii.h>

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

namespace
{
// Beyond the longest stretch that is taken at once, and in all lengths up to there.
std::size_t const longest = 100;

std::string letters(std::size_t length)
{
  std::string text;
  for (std::size_t i = 0; i < length; ++i)
    text += static_cast<char>(i % 0x80);
  return text;
}
}

TEST(apAscii, text_of_any_length_is_ASCII_if_all_bytes_are)
{
  for (std::size_t length = 0; length <= longest; ++length)
    EXPECT_TRUE(apAscii::is_ascii(letters(length).data(), length)) << length;
}

TEST(apAscii, one_other_byte_anywhere_is_found)
{
  for (std::size_t length = 1; length <= longest; ++length)
    for (std::size_t at = 0; at < length; ++at)
    {
      std::string text = letters(length);
      text[at] = '\x80';
      EXPECT_FALSE(apAscii::is_ascii(text.data(), length)) << length << ' ' << at;
    }
}

TEST(apAscii, one_other_wide_character_anywhere_is_found)
{
  for (std::size_t length = 1; length <= longest; ++length)
    for (std::size_t at = 0; at < length; ++at)
    {
      std::string const narrow = letters(length);
      std::wstring text(narrow.begin(), narrow.end());
      EXPECT_TRUE(apAscii::is_ascii(text.data(), length)) << length;
      for (wchar_t const other : {L'\x80', L'\x100', L'\x20AC', static_cast<wchar_t>(-1)})
      {
        text[at] = other;
        EXPECT_FALSE(apAscii::is_ascii(text.data(), length)) << length << ' ' << at;
      }
    }
}

TEST(apAscii, narrows_text_of_any_length_and_writes_nothing_around_it)
{
  for (std::size_t length = 0; length <= longest; ++length)
  {
    std::string const text = letters(length);
    std::wstring const wide(text.begin(), text.end());
    std::string narrow(length + 2, '#');
    apAscii::narrow(wide.data(), length, narrow.data() + 1);
    EXPECT_EQ(narrow, '#' + text + '#') << length;
  }
}

TEST(apAscii, bytes_after_the_text_do_not_count)
{
  for (std::size_t length = 0; length <= longest; ++length)
    EXPECT_TRUE(apAscii::is_ascii((letters(length) + "\xFF\xFF").data(), length)) << length;
}

TEST(apAscii, widens_text_of_any_length_and_writes_nothing_around_it)
{
  for (std::size_t length = 0; length <= longest; ++length)
  {
    std::string const text = letters(length);
    std::wstring wide(length + 2, L'#');
    apAscii::widen(text.data(), length, wide.data() + 1);
    EXPECT_EQ(wide, L'#' + std::wstring(text.begin(), text.end()) + L'#') << length;
  }
}
