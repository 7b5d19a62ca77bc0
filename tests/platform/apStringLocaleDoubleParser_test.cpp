#include <apStringLocaleDoubleParser.h>

#include "../TestLocale.h"

#include <cfenv>
#include <cfloat>
#include <cmath>
#include <cwchar>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace
{
using Parser = apStringLocaleDoubleParser;

double const infinity = std::numeric_limits<double>::infinity();

void expect_read(apString const& text, double value, int position)
{
  Parser::Result const result = Parser::parse(text);
  EXPECT_TRUE(result.success) << text.to_utf8();
  EXPECT_EQ(result.value, value) << text.to_utf8();
  EXPECT_EQ(result.position, position) << text.to_utf8();
}

void expect_refused(apString const& text)
{
  Parser::Result const result = Parser::parse(text);
  EXPECT_FALSE(result.success) << text.to_utf8();
  EXPECT_EQ(result.value, 0.0) << text.to_utf8();
  EXPECT_EQ(result.position, 0) << text.to_utf8();
}
}

TEST(apStringLocaleDoubleParser, reads_digits_point_and_exponent)
{
  expect_read(L"0", 0.0, 1);
  expect_read(L"1.5", 1.5, 3);
  expect_read(L"-1.5", -1.5, 4);
  expect_read(L"+1.5", 1.5, 4);
  expect_read(L".5", 0.5, 2);
  expect_read(L"5.", 5.0, 2);
  expect_read(L"1e3", 1000.0, 3);
  expect_read(L"1.25E-2", 0.0125, 7);
}

TEST(apStringLocaleDoubleParser, skips_white_space_before_the_number_and_counts_it)
{
  expect_read(L" \t\n1.5", 1.5, 6);
}

TEST(apStringLocaleDoubleParser, stops_where_the_number_ends)
{
  expect_read(L"1.5abc", 1.5, 3);
  expect_read(L"1.5 ", 1.5, 3);
  expect_read(L"1.5.5", 1.5, 3);
  expect_read(L"1,5", 1.0, 1);
  expect_read(L"1e", 1.0, 1);
  expect_read(L"1e+", 1.0, 1);
  expect_read(apString(L"1\0002", 3), 1.0, 1);
}

TEST(apStringLocaleDoubleParser, refuses_what_is_no_number)
{
  for (wchar_t const* const text : {L"", L" ", L"abc", L"-", L"+", L".", L",5", L"e5", L"--1", L"- 1"})
    expect_refused(text);
}

TEST(apStringLocaleDoubleParser, reads_infinities_and_not_a_number_in_any_case)
{
  expect_read(L"inf", infinity, 3);
  expect_read(L"-INF", -infinity, 4);
  expect_read(L"Infinity", infinity, 8);
  Parser::Result const nan = Parser::parse(L"NaN");
  EXPECT_TRUE(nan.success);
  EXPECT_EQ(nan.position, 3);
  EXPECT_TRUE(std::isnan(nan.value));
}

TEST(apStringLocaleDoubleParser, reads_hexadecimal_numbers)
{
  expect_read(L"0x10", 16.0, 4);
  expect_read(L"-0x1.8p1", -3.0, 8);
}

TEST(apStringLocaleDoubleParser, gives_the_nearest_double)
{
  expect_read(L"0.1", 0.1, 3);
  expect_read(L"0.30000000000000004", 0.1 + 0.2, 19);
  expect_read(L"9007199254740993", 9007199254740992.0, 16);
  expect_read(L"1.7976931348623157e308", DBL_MAX, 22);
  expect_read(L"2.2250738585072014e-308", DBL_MIN, 23);
  expect_read(L"5e-324", std::numeric_limits<double>::denorm_min(), 6);
}

TEST(apStringLocaleDoubleParser, number_too_large_is_an_infinity_and_one_too_small_is_0)
{
  expect_read(L"1e999", infinity, 5);
  expect_read(L"-1e999", -infinity, 6);
  expect_read(L"1e-999", 0.0, 6);
}

TEST(apStringLocaleDoubleParser, keeps_the_sign_of_0)
{
  EXPECT_TRUE(std::signbit(Parser::parse(L"-0").value));
}

TEST(apStringLocaleDoubleParser, reads_what_the_C_library_reads_in_every_direction_of_rounding)
{
#if defined(_WIN32)
  // The C library there knows one direction only.
  int const directions[] = {FE_TONEAREST};
#else
  int const directions[] = {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};
#endif
  // The forms in which numbers stand in documents, and those just beyond: digits around the number of them that a double
  // holds exactly, points, exponents and signs in places good and bad.
  std::mt19937 random(1);
  auto const up_to = [&](unsigned most) { return static_cast<unsigned>(random() % (most + 1)); };
  auto const digits = [&](unsigned most)
  {
    std::wstring text;
    for (unsigned count = up_to(most); count > 0; --count)
      text += static_cast<wchar_t>(L'0' + up_to(9));
    return text;
  };
  wchar_t const* const signs[] = {L"", L"-", L"+", L" -"};
  wchar_t const* const points[] = {L"", L".", L".", L","};
  wchar_t const* const ends[] = {L"", L"", L"", L"e3", L"E-7", L"x", L".5"};
  for (int const direction : directions)
  {
    ASSERT_EQ(std::fesetround(direction), 0);
    for (int round = 0; round < 20000; ++round)
    {
      std::wstring const text = signs[up_to(3)] + digits(17) + points[up_to(3)] + digits(17) + ends[up_to(6)];
      wchar_t* end = nullptr;
      double const value = std::wcstod(text.c_str(), &end);
      // Where there is no number, some C libraries give a zero with a sign.
      double const expected = end != text.c_str() ? value : 0.0;
      Parser::Result const result = Parser::parse(apString(text.c_str()));
      if (result.value != expected || std::signbit(result.value) != std::signbit(expected) ||
          result.position != end - text.c_str() || result.success != (end != text.c_str()))
        ADD_FAILURE() << apString(text.c_str()).to_utf8() << ' ' << direction;
    }
  }
  std::fesetround(FE_TONEAREST);
}

TEST(apStringLocaleDoubleParser, takes_the_decimal_comma_of_the_locale_and_no_point)
{
  TestLocale const locale(TestLocale::comma);
  expect_read(L"1,5", 1.5, 3);
  expect_read(L"-,5e1", -5.0, 5);
  expect_read(L"1.5", 1.0, 1);
  expect_read(L"1,5.5", 1.5, 3);
  expect_read(L"1.000,5", 1.0, 1);
}

#if !defined(_WIN32)
TEST(apStringLocaleDoubleParser, takes_a_decimal_point_beyond_ASCII)
{
  TestLocale const locale(TestLocale::two_byte_point);
  expect_read(L"1\u066B5", 1.5, 3);
  expect_read(L"1.5", 1.0, 1);
}
#endif
