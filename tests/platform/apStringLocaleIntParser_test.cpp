#include <apStringLocaleIntParser.h>

#include "../TestLocale.h"

#include <climits>
#include <gtest/gtest.h>

namespace
{
using Parser = apStringLocaleIntParser;

void expect_read(apString const& text, int value, int position)
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
  EXPECT_EQ(result.value, 0) << text.to_utf8();
  EXPECT_EQ(result.position, 0) << text.to_utf8();
}
}

TEST(apStringLocaleIntParser, reads_decimal_digits)
{
  expect_read(L"0", 0, 1);
  expect_read(L"123", 123, 3);
  expect_read(L"007", 7, 3);
}

TEST(apStringLocaleIntParser, reads_a_sign)
{
  expect_read(L"-5", -5, 2);
  expect_read(L"+5", 5, 2);
  expect_read(L"-0", 0, 2);
}

TEST(apStringLocaleIntParser, skips_white_space_before_the_number_and_counts_it)
{
  expect_read(L" \t\n\r\v\f42", 42, 8);
  expect_read(L"  -1", -1, 4);
}

TEST(apStringLocaleIntParser, stops_after_the_last_digit)
{
  expect_read(L"12abc", 12, 2);
  expect_read(L"12 ", 12, 2);
  expect_read(L"1.5", 1, 1);
  expect_read(L"1,000", 1, 1);
  expect_read(L"0x10", 0, 1);
  expect_read(L"1e3", 1, 1);
  expect_read(apString(L"12\0003", 4), 12, 2);
}

TEST(apStringLocaleIntParser, refuses_what_is_no_number)
{
  for (wchar_t const* const text : {L"", L" ", L"abc", L"-", L"+", L"+-1", L"--1", L"- 1", L"  -", L".5", L"\u0661"})
    expect_refused(text);
}

TEST(apStringLocaleIntParser, reads_the_smallest_and_the_largest_int)
{
  expect_read(L"2147483647", INT_MAX, 10);
  expect_read(L"-2147483648", INT_MIN, 11);
  expect_read(L"00000000000000000000000000000002147483647", INT_MAX, 41);
}

TEST(apStringLocaleIntParser, refuses_numbers_that_do_not_fit_an_int)
{
  for (wchar_t const* const text : {L"2147483648", L"-2147483649", L"4294967296", L"9223372036854775807",
         L"18446744073709551616", L"-99999999999999999999999999999999"})
    expect_refused(text);
}

TEST(apStringLocaleIntParser, reads_the_same_in_a_locale_with_a_decimal_comma)
{
  TestLocale const locale(TestLocale::comma);
  expect_read(L"-123", -123, 4);
  expect_read(L"1.000", 1, 1);
  expect_read(L"1,5", 1, 1);
}
