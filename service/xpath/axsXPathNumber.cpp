#include "axsXPathNumber.h"

#include "axsXPathText.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace
{
bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

/// Whether `text` is Digits ('.' Digits?)? or '.' Digits.
bool is_unsigned_number(std::string_view text) noexcept
{
  bool has_digit = false;
  bool has_point = false;
  for (char const c : text)
  {
    if (c == '.' && !has_point)
      has_point = true;
    else if (is_digit(c))
      has_digit = true;
    else
      return false;
  }
  return has_digit;
}

/// What a number written without an exponent is when it is no double: too large if it has an integer part, too small
/// otherwise.
double beyond_doubles(std::string_view digits) noexcept
{
  std::size_t const significant = digits.find_first_not_of('0');
  return significant == std::string_view::npos || digits[significant] == '.' ? 0.0
                                                                             : std::numeric_limits<double>::infinity();
}
}

double axsXPathNumber::from_text(std::string_view text) noexcept
{
  text = axsXPathText::trim(text);
  bool const negative = !text.empty() && text.front() == '-';
  if (negative)
    text.remove_prefix(1);
  if (!is_unsigned_number(text))
    return std::numeric_limits<double>::quiet_NaN();

  double number = 0;
  auto const read = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (read.ec != std::errc())
    number = beyond_doubles(text);
  return negative ? -number : number;
}

std::string axsXPathNumber::to_text(double number)
{
  if (std::isnan(number))
    return "NaN";
  if (std::isinf(number))
    return number > 0 ? "Infinity" : "-Infinity";
  if (number == 0)
    return "0";
  // The longest are the smallest doubles: a sign, "0.", 323 zeros and up to 17 digits.
  char digits[384];
  auto const written = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
  return std::string(digits, written.ptr);
}

double axsXPathNumber::round(double number) noexcept
{
  // Adding a half first would round where the sum has no double of its own, as just below 0.5 and beyond 2^52.
  double const below = std::floor(number);
  double const rounded = number - below < 0.5 ? below : std::ceil(number);
  return rounded == 0 ? std::copysign(0.0, number) : rounded;
}
