#include <apStringFormatter.h>

#include "../TestLocale.h"

#include <cfloat>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace
{
template <class... Arguments>
std::wstring formatted(wchar_t const* format, Arguments... arguments)
{
  return std::wstring(apStringFormatter::format(format, arguments...).view());
}

// What must be the same under every locale.
void expect_floats_with_points()
{
  EXPECT_EQ(formatted(L"%.16g", 1.5), L"1.5");
  EXPECT_EQ(formatted(L"%f", -1.25), L"-1.250000");
  EXPECT_EQ(formatted(L"%.3e", 12345.678), L"1.235e+04");
  EXPECT_EQ(formatted(L"%8.2f|", -1.25), L"   -1.25|");
  EXPECT_EQ(formatted(L"%-8.2f|", -1.25), L"-1.25   |");
  EXPECT_EQ(formatted(L"%08.2f|", -1.25), L"-0001.25|");
  EXPECT_EQ(formatted(L"%+.1f % .1f", 1.25, 1.25), L"+1.2  1.2");
  EXPECT_EQ(formatted(L"%#.0f", 1.0), L"1.");
  EXPECT_EQ(formatted(L"%g", 1e100), L"1e+100");
  EXPECT_EQ(formatted(L"%5.0f|", 3.0), L"    3|");
}
}

TEST(apStringFormatter, text_without_directives_stays)
{
  EXPECT_EQ(formatted(L""), L"");
  EXPECT_EQ(formatted(L"abc \u0444"), L"abc \u0444");
}

TEST(apStringFormatter, percent_sign)
{
  EXPECT_EQ(formatted(L"100%%"), L"100%");
}

TEST(apStringFormatter, signed_numbers)
{
  EXPECT_EQ(formatted(L"%d %i", 42, -42), L"42 -42");
  EXPECT_EQ(formatted(L"%d %d", INT_MIN, INT_MAX), L"-2147483648 2147483647");
  EXPECT_EQ(formatted(L"%5d|%-5d|%05d|%+d|% d", 42, 42, 42, 42, 42), L"   42|42   |00042|+42| 42");
  EXPECT_EQ(formatted(L"%.3d", 7), L"007");
}

TEST(apStringFormatter, unsigned_numbers)
{
  EXPECT_EQ(formatted(L"%u", UINT_MAX), L"4294967295");
  EXPECT_EQ(formatted(L"%x %X %o %#x", 255u, 255u, 8u, 255u), L"ff FF 10 0xff");
}

TEST(apStringFormatter, lengths)
{
  EXPECT_EQ(formatted(L"%hhd %hd", 257, 65537), L"1 1");
  EXPECT_EQ(formatted(L"%hhu %hu", 257, 65537), L"1 1");
  EXPECT_EQ(formatted(L"%ld %lu", LONG_MIN, ULONG_MAX), std::to_wstring(LONG_MIN) + L" " + std::to_wstring(ULONG_MAX));
  EXPECT_EQ(formatted(L"%lld %llu", LLONG_MIN, ULLONG_MAX), L"-9223372036854775808 18446744073709551615");
  EXPECT_EQ(formatted(L"%jd %ju", INTMAX_MIN, UINTMAX_MAX), L"-9223372036854775808 18446744073709551615");
  EXPECT_EQ(formatted(L"%zu %td", static_cast<std::size_t>(7), static_cast<std::ptrdiff_t>(-7)), L"7 -7");
  EXPECT_EQ(formatted(L"%zd %tu", static_cast<std::ptrdiff_t>(-7), static_cast<std::size_t>(7)), L"-7 7");
  EXPECT_EQ(formatted(L"%lf", 1.5), L"1.500000");
}

TEST(apStringFormatter, floating_point_numbers)
{
  expect_floats_with_points();
  EXPECT_EQ(formatted(L"%.16g", 0.1 + 0.2), L"0.3");
  EXPECT_EQ(formatted(L"%.17g", 0.1 + 0.2), L"0.30000000000000004");
  EXPECT_EQ(formatted(L"%.16g", DBL_MAX), L"1.797693134862316e+308");
  EXPECT_EQ(formatted(L"%E %G %F", 1.5, 1e-10, 1.5), L"1.500000E+00 1E-10 1.500000");
}

TEST(apStringFormatter, infinities_and_not_a_number)
{
  double const infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(formatted(L"%g %f %G", infinity, -infinity, infinity), L"inf -inf INF");
  EXPECT_EQ(formatted(L"%g", std::numeric_limits<double>::quiet_NaN()), L"nan");
}

TEST(apStringFormatter, floating_point_numbers_have_a_point_in_a_locale_with_a_comma)
{
  TestLocale const locale(TestLocale::comma);
  expect_floats_with_points();
}

#if !defined(_WIN32)
TEST(apStringFormatter, floating_point_numbers_have_a_point_in_a_locale_whose_point_takes_two_bytes)
{
  TestLocale const locale(TestLocale::two_byte_point);
  expect_floats_with_points();
}
#endif

TEST(apStringFormatter, wide_texts)
{
  EXPECT_EQ(formatted(L"<%s>", L"abc\u0444"), L"<abc\u0444>");
  EXPECT_EQ(formatted(L"<%ls>", L"abc"), L"<abc>");
  EXPECT_EQ(formatted(L"%5s|%-5s|", L"ab", L"ab"), L"   ab|ab   |");
  EXPECT_EQ(formatted(L"%.2s|%.0s|%.9s", L"abc", L"abc", L"abc"), L"ab||abc");
  EXPECT_EQ(formatted(L"%5.2s|", L"abc"), L"   ab|");
}

TEST(apStringFormatter, wide_text_with_a_precision_need_not_be_closed)
{
  wchar_t const open[] = {L'a', L'b', L'c'};
  EXPECT_EQ(formatted(L"%.3s", static_cast<wchar_t const*>(open)), L"abc");
}

TEST(apStringFormatter, narrow_texts_are_read_as_UTF_8)
{
  EXPECT_EQ(formatted(L"<%hs>", "\xD1\x84"), L"<\u0444>");
  EXPECT_EQ(formatted(L"%3hs|%.1hs", "\xD1\x84", "\xD1\x84\xD1\x85"), L"  \u0444|\u0444");
}

TEST(apStringFormatter, null_text_is_said_to_be_one)
{
  EXPECT_EQ(
    formatted(L"%s %hs", static_cast<wchar_t const*>(nullptr), static_cast<char const*>(nullptr)), L"(null) (null)");
}

TEST(apStringFormatter, characters)
{
  EXPECT_EQ(formatted(L"%c%c%lc", L'a', L'\u0444', L'b'), L"a\u0444b");
  EXPECT_EQ(formatted(L"%3c|%-3c|", L'a', L'a'), L"  a|a  |");
}

TEST(apStringFormatter, NUL_character_is_part_of_the_text)
{
  EXPECT_EQ(formatted(L"a%cb", L'\0'), std::wstring(L"a\0b", 3));
}

TEST(apStringFormatter, pointers)
{
  int object = 0;
  EXPECT_FALSE(formatted(L"%p", static_cast<void*>(&object)).empty());
}

TEST(apStringFormatter, width_and_precision_as_arguments)
{
  EXPECT_EQ(formatted(L"%*d|", 5, 42), L"   42|");
  EXPECT_EQ(formatted(L"%*d|", -7, 42), L"42     |") << "a negative width is one from the left";
  EXPECT_EQ(formatted(L"%*%|", INT_MIN), L"%|");
  EXPECT_EQ(formatted(L"%.*f", 1, 1.25), L"1.2");
  EXPECT_EQ(formatted(L"%.*f", -1, 1.5), L"1.500000") << "a negative precision is none";
  EXPECT_EQ(formatted(L"%*.*s|", 4, 2, L"abc"), L"  ab|");
}

TEST(apStringFormatter, precision_without_a_number_is_0)
{
  EXPECT_EQ(formatted(L"%.f", 1.75), L"2");
  EXPECT_EQ(formatted(L"%.s|", L"abc"), L"|");
}

TEST(apStringFormatter, precision_of_more_digits_than_a_number_has_takes_all)
{
  EXPECT_EQ(formatted(L"%.99999999999999999999s|", L"abc"), L"abc|");
}

TEST(apStringFormatter, arguments_are_taken_in_order)
{
  EXPECT_EQ(formatted(L"%d %s %.1f %c %u", -1, L"two", 3.5, L'4', 5u), L"-1 two 3.5 4 5");
}

TEST(apStringFormatter, unknown_directive_stands_as_it_is_with_all_after_it)
{
  EXPECT_EQ(formatted(L"%d %y %d", 1, 2, 3), L"1 %y %d");
  EXPECT_EQ(formatted(L"%n"), L"%n");
  EXPECT_EQ(formatted(L"%5Q|"), L"%5Q|");
  EXPECT_EQ(formatted(L"%a"), L"%a");
}

TEST(apStringFormatter, length_that_makes_no_sense_is_unknown)
{
  for (wchar_t const* const pattern :
    {L"%lhd", L"%hld", L"%jjd", L"%hhhd", L"%lls", L"%hc", L"%hf", L"%lp", L"%l%", L"%Lf"})
    EXPECT_EQ(formatted(pattern, 1), pattern);
}

TEST(apStringFormatter, unfinished_directive_stands_as_it_is)
{
  EXPECT_EQ(formatted(L"abc%"), L"abc%");
  EXPECT_EQ(formatted(L"%-5.3l"), L"%-5.3l");
}
