// Conversion between UTF-8 and wide text, held against a model made from the definition of UTF-8 alone: a sequence of
// bytes is well-formed if it is what a scalar value is encoded as, and a beginning of one if it begins one of those.

#include <apString.h>

#include <cstddef>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace
{
bool const wide_is_utf16 = sizeof(wchar_t) == 2;

bool is_scalar_value(unsigned long c)
{
  return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF);
}

std::string encoded(unsigned long c)
{
  auto const byte = [](unsigned long value) { return static_cast<char>(static_cast<unsigned char>(value)); };
  if (c <= 0x7F)
    return {byte(c)};
  if (c <= 0x7FF)
    return {byte(0xC0 + c / 64), byte(0x80 + c % 64)};
  if (c <= 0xFFFF)
    return {byte(0xE0 + c / 4096), byte(0x80 + c / 64 % 64), byte(0x80 + c % 64)};
  return {byte(0xF0 + c / 262144), byte(0x80 + c / 4096 % 64), byte(0x80 + c / 64 % 64), byte(0x80 + c % 64)};
}

std::wstring wide(unsigned long c)
{
  if (!wide_is_utf16 || c <= 0xFFFF)
    return {static_cast<wchar_t>(c)};
  return {static_cast<wchar_t>(0xD800 + (c - 0x10000) / 1024), static_cast<wchar_t>(0xDC00 + (c - 0x10000) % 1024)};
}

std::size_t number(std::string_view bytes)
{
  std::size_t result = 0;
  for (char const byte : bytes)
    result = result * 256 + static_cast<unsigned char>(byte);
  return result;
}

class Model
{
public:
  Model()
    : beginnings{
        std::vector<bool>(1), std::vector<bool>(1u << 8), std::vector<bool>(1u << 16), std::vector<bool>(1u << 24)}
  {
    for (unsigned long c = 0; c <= 0x10FFFF; ++c)
      if (is_scalar_value(c))
      {
        std::string const bytes = encoded(c);
        for (std::size_t length = 1; length <= bytes.size() && length <= 3; ++length)
          beginnings[length][number(bytes.substr(0, length))] = true;
      }
  }

  std::wstring decoded(std::string_view bytes) const
  {
    std::wstring result;
    while (!bytes.empty())
    {
      std::size_t length = 0;
      std::wstring const character = first_character(bytes, length);
      result += character;
      bytes.remove_prefix(length);
    }
    return result;
  }

private:
  // The first character of `bytes`, and how many of them it takes.
  std::wstring first_character(std::string_view bytes, std::size_t& length) const
  {
    unsigned long c = 0;
    for (length = 1; length <= 4 && length <= bytes.size(); ++length)
    {
      auto const byte = static_cast<unsigned char>(bytes[length - 1]);
      c = length == 1 ? (byte < 0x80    ? byte
                          : byte < 0xE0 ? byte & 0x1Fu
                          : byte < 0xF0 ? byte & 0x0Fu
                                        : byte & 0x07u)
                      : c * 64 + (byte & 0x3Fu);
      if (is_scalar_value(c) && encoded(c) == bytes.substr(0, length))
        return wide(c);
    }
    for (length = 3; length > 1; --length)
      if (length <= bytes.size() && beginnings[length][number(bytes.substr(0, length))])
        break;
    return L"\uFFFD";
  }

  // Whether a number of 1 to 3 bytes begins a well-formed sequence.
  std::vector<bool> beginnings[4];
};

Model const& model()
{
  static Model const made;
  return made;
}

std::string text(utString const& utf8)
{
  return {utf8.c_str(), static_cast<std::size_t>(utf8.length())};
}
}

TEST(apString_utf8, every_scalar_value_is_read_and_written)
{
  for (unsigned long c = 0; c <= 0x10FFFF; ++c)
    if (is_scalar_value(c))
    {
      std::string const utf8 = encoded(c);
      apString const read = apString::from_utf8(utf8);
      ASSERT_EQ(read.view(), wide(c)) << c;
      ASSERT_EQ(text(read.to_utf8()), utf8) << c;
    }
}

TEST(apString_utf8, every_beginning_of_one_and_two_bytes_at_the_end_of_a_text_is_read_as_the_model_reads_it)
{
  for (int first = 0; first < 256; ++first)
  {
    std::string const one = {'a', static_cast<char>(first)};
    ASSERT_EQ(apString::from_utf8(one).view(), model().decoded(one)) << first;
    for (int second = 0; second < 256; ++second)
    {
      std::string const two = one + static_cast<char>(second);
      ASSERT_EQ(apString::from_utf8(two).view(), model().decoded(two)) << first << ' ' << second;
    }
  }
}

// Each of the sequences stands between two characters of its own, so that one does not reach into the next.
TEST(apString_utf8, every_beginning_of_three_bytes_is_read_as_the_model_reads_it)
{
  for (int first = 0x80; first < 256; ++first)
  {
    std::string all;
    for (int second = 0; second < 256; ++second)
      for (int third = 0; third < 256; ++third)
        all += {static_cast<char>(first), static_cast<char>(second), static_cast<char>(third), '|'};
    ASSERT_TRUE(apString::from_utf8(all).view() == model().decoded(all)) << first;
  }
}

TEST(apString_utf8, every_beginning_of_three_bytes_before_the_edges_of_a_fourth_is_read_as_the_model_reads_it)
{
  for (int first = 0xE0; first < 256; ++first)
  {
    std::string all;
    for (int second = 0x7F; second <= 0xC0; ++second)
      for (int third = 0x7F; third <= 0xC0; ++third)
        for (int const fourth : {0x7F, 0x80, 0xBF, 0xC0})
          all += {static_cast<char>(first), static_cast<char>(second), static_cast<char>(third),
            static_cast<char>(fourth), '|'};
    ASSERT_TRUE(apString::from_utf8(all).view() == model().decoded(all)) << first;
  }
}

TEST(apString_utf8, texts_of_any_length_are_read_as_the_model_reads_them)
{
  // What is well-formed and what is not, one after the other in any order.
  std::vector<std::string> const pieces = {"a", "words", "\xC3\xA9", "\xD1\x84", "\xE2\x82\xAC", "\xE0\xA0\x80",
    "\xED\x9F\xBF", "\xF0\x9F\x98\x80", "\x80", "\xC3", "\xE2\x82", "\xED\xA0\x80", "\xF0\x9F\x98", "\xF8", "\xC0\x80"};
  std::mt19937 random(1);
  for (std::size_t const length :
    {1u, 5u, 10u, 20u, 22u, 23u, 24u, 25u, 100u, 1000u, 1020u, 1022u, 1023u, 1024u, 1025u, 1026u, 1030u, 2000u, 5000u})
    for (int i = 0; i < 50; ++i)
    {
      std::string bytes;
      while (bytes.size() < length)
        bytes += pieces[random() % pieces.size()];
      bytes.resize(length);
      ASSERT_EQ(apString::from_utf8(bytes).view(), model().decoded(bytes)) << length << ' ' << i;
      apString assigned(i % 2 == 0 ? L"short" : L"a text of more characters than has room in the object");
      assigned.assign_utf8(bytes);
      ASSERT_EQ(assigned.view(), model().decoded(bytes)) << length << ' ' << i;
    }
}

TEST(apString_utf8, ASCII_of_any_length_is_assigned_as_it_is_read)
{
  for (std::size_t length = 0; length <= 2 * apString::max_inside; ++length)
    for (wchar_t const* const before : {L"", L"short", L"a text of more characters than has room in the object"})
    {
      std::string const bytes(length, 'x');
      apString assigned(before);
      apString const copy(assigned);
      assigned.assign_utf8(bytes);
      ASSERT_EQ(assigned.view(), std::wstring(length, L'x'));
      ASSERT_EQ(assigned.c_str()[length], L'\0');
      ASSERT_EQ(copy.view(), before);
    }
}

TEST(apString_utf8, each_maximal_beginning_of_an_ill_formed_sequence_becomes_one_replacement)
{
  struct Case
  {
    char const* utf8;
    wchar_t const* wide;
  };
  // The examples of the Unicode Standard, chapter 3, and the classic ones.
  for (Case const& expected : {Case{"a\xF1\x80\x80\xE1\x80\xC2"
                                    "b\x80"
                                    "c\x80\xBF"
                                    "d",
                                 L"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd"},
         {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82"
          "A",
           L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
         {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF"
          "A",
           L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
         {"\xF4\x91\x92\x93\xFF"
          "A\x80\xBF"
          "B",
           L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB"},
         {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF"
          "A",
           L"\uFFFD\uFFFD\uFFFD\uFFFDA"},
         {"\xFE\xFF", L"\uFFFD\uFFFD"}, {"\xC3", L"\uFFFD"}})
    EXPECT_EQ(apString(expected.utf8).view(), expected.wide);
}

TEST(apString_utf8, byte_order_mark_is_a_character)
{
  EXPECT_EQ(apString("\xEF\xBB\xBF"
                     "a")
              .view(),
    L"\uFEFFa");
}

TEST(apString_utf8, NULs_are_kept_both_ways)
{
  std::string const utf8("a\0\xC3\xA4\0", 5);
  apString const read = apString::from_utf8(utf8);
  EXPECT_EQ(read.view(), std::wstring_view(L"a\0\u00E4\0", 4));
  EXPECT_EQ(text(read.to_utf8()), utf8);
}

TEST(apString_utf8, empty_text_is_empty_both_ways)
{
  EXPECT_TRUE(apString::from_utf8({}).empty());
  EXPECT_EQ(apString().to_utf8(), utString(""));
}

TEST(apString_utf8, is_what_a_stream_gets)
{
  std::ostringstream out;
  out << apString(L"\u0444 \u65E5");
  EXPECT_EQ(out.str(), "\xD1\x84 \xE6\x97\xA5");
}

TEST(apString_utf8, unpaired_surrogates_become_replacements)
{
  for (unsigned long c = 0xD800; c <= 0xDFFF; ++c)
  {
    wchar_t const alone[] = {L'a', static_cast<wchar_t>(c), L'b'};
    ASSERT_EQ(text(apString(alone, 3).to_utf8()), "a\xEF\xBF\xBD"
                                                  "b")
      << c;
    ASSERT_EQ(text(apString(alone, 2).to_utf8()), "a\xEF\xBF\xBD") << c;
  }
}

TEST(apString_utf8, surrogate_pairs_are_one_character_where_wide_text_is_UTF_16)
{
  wchar_t const pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
  EXPECT_EQ(text(apString(pair, 2).to_utf8()), wide_is_utf16 ? "\xF0\x9F\x98\x80" : "\xEF\xBF\xBD\xEF\xBF\xBD");
  wchar_t const turned[] = {pair[1], pair[0]};
  EXPECT_EQ(text(apString(turned, 2).to_utf8()), "\xEF\xBF\xBD\xEF\xBF\xBD");
  wchar_t const doubled[] = {pair[0], pair[0], pair[1]};
  EXPECT_EQ(text(apString(doubled, 3).to_utf8()),
    wide_is_utf16 ? "\xEF\xBF\xBD\xF0\x9F\x98\x80" : "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(apString_utf8, numbers_beyond_Unicode_become_replacements_where_wide_text_can_hold_them)
{
  for (long long const c : {0x110000LL, 0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL, -1LL})
  {
    wchar_t const beyond[] = {static_cast<wchar_t>(c)};
    // Of 16 bits these are U+0000 and U+FFFF.
    if (!wide_is_utf16)
    {
      ASSERT_EQ(text(apString(beyond, 1).to_utf8()), "\xEF\xBF\xBD") << c;
    }
    else
    {
      ASSERT_EQ(text(apString(beyond, 1).to_utf8()), encoded(static_cast<unsigned long>(c & 0xFFFF))) << c;
    }
  }
}
