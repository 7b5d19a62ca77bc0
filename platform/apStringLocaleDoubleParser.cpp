#include "apStringLocaleDoubleParser.h"

#include "apDecimalPoint.h"

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <cwchar>

namespace
{
using Result = apStringLocaleDoubleParser::Result;

bool is_digit(wchar_t c)
{
  return c >= L'0' && c <= L'9';
}

// Reads a number of a sign, digits, and perhaps a point and more digits, so few that they and the power of ten which they
// are divided by are doubles without rounding: the one division then rounds as the C library does, in whatever direction.
// Where the number at `begin` is not of that kind, what is read fails, which says nothing about the number.
Result read_simple(wchar_t const* begin)
{
  static constexpr double powers_of_ten[] = {
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  static constexpr std::ptrdiff_t max_digits = 15;
  static constexpr Result other{false, 0, 0.0};

  wchar_t const* at = begin;
  bool const negative = *at == L'-';
  if (negative || *at == L'+')
    ++at;

  std::int64_t digits = 0;
  wchar_t const* const whole = at;
  for (; is_digit(*at) && at - whole < max_digits; ++at)
    digits = digits * 10 + (*at - L'0');
  std::ptrdiff_t count = at - whole;
  if (count == 0 || is_digit(*at))
    return other;

  std::ptrdiff_t digits_after_point = 0;
  if (*at != L'\0' && *at == apDecimalPoint::of_locale())
  {
    wchar_t const* const fraction = ++at;
    for (; is_digit(*at) && count < max_digits; ++at, ++count)
      digits = digits * 10 + (*at - L'0');
    digits_after_point = at - fraction;
    if (digits_after_point == 0 || is_digit(*at))
      return other;
  }
  // What may be an exponent, a hexadecimal number, or the decimal point in another form.
  if (*at != L'\0')
    return other;

  // The sign comes first, for rounding may depend on it, and 0 has one.
  double const exact = negative ? -static_cast<double>(digits) : static_cast<double>(digits);
  return {true, static_cast<int>(at - begin), exact / powers_of_ten[digits_after_point]};
}
}

apStringLocaleDoubleParser::Result apStringLocaleDoubleParser::parse(apString const& text) noexcept
{
  wchar_t const* const begin = text.c_str();
#if FLT_EVAL_METHOD == 0
  Result const simple = read_simple(begin);
  if (simple.success)
    return simple;
#endif
  wchar_t* end = nullptr;
  double const value = std::wcstod(begin, &end);
  if (end == begin)
    return {false, 0, 0.0};
  return {true, static_cast<int>(end - begin), value};
}
