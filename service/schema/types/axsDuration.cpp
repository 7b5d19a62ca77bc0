#include "axsDuration.h"

#include "axsDecimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <system_error>

using Order = axsValue::Order;

namespace
{
bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

// digits * factor + addend, both in decimal digits.
void multiply_add(std::string& digits, unsigned factor, std::string_view addend)
{
  std::string result;
  unsigned carry = 0;
  for (std::size_t i = 0; i < digits.size() || i < addend.size() || carry > 0; ++i)
  {
    if (i < digits.size())
      carry += static_cast<unsigned>(digits[digits.size() - 1 - i] - '0') * factor;
    if (i < addend.size())
      carry += static_cast<unsigned>(addend[addend.size() - 1 - i] - '0');
    result += static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  digits.assign(result.rbegin(), result.rend());
}

class Reader
{
public:
  explicit Reader(std::string_view given) noexcept : text(given) {}

  bool append(std::string& bytes)
  {
    if (!read())
      return false;
    std::string months;
    multiply_add(months, 1, parts[years]);
    multiply_add(months, 12, parts[months_part]);
    std::string seconds;
    multiply_add(seconds, 1, parts[days]);
    multiply_add(seconds, 24, parts[hours]);
    multiply_add(seconds, 60, parts[minutes]);
    multiply_add(seconds, 60, parts[seconds_part]);
    append_number(months, {}, bytes);
    append_number(seconds, fraction, bytes);
    return true;
  }

private:
  enum Part
  {
    years,
    months_part,
    days,
    hours,
    minutes,
    seconds_part,
    part_count
  };

  // -?P(nY)?(nM)?(nD)?(T(nH)?(nM)?(n(.n)?S)?)?, with at least one number, and one after T.
  bool read()
  {
    negative = skip('-');
    if (!skip('P'))
      return false;
    bool const has_date = read_parts(years, hours, "YMD");
    if (!skip('T'))
      return has_date && at == text.size();
    return read_parts(hours, part_count, "HMS") && at == text.size();
  }

  // Whether there was one of the parts, each of which its letter ends.
  bool read_parts(int from, int to, char const* letters)
  {
    bool found = false;
    for (int part = from; part < to && at < text.size() && is_digit(text[at]); ++part)
    {
      std::size_t const begin = at;
      std::string_view const number = digits();
      std::string_view const decimals = part == seconds_part && skip('.') ? digits() : std::string_view();
      bool const has_bare_point = text[at - 1] == '.';
      if (!has_bare_point && skip(letters[part - from]))
      {
        parts[part] = number;
        fraction = decimals;
        found = true;
      }
      else
        at = begin;
    }
    return found;
  }

  std::string_view digits()
  {
    std::size_t const begin = at;
    while (at < text.size() && is_digit(text[at]))
      ++at;
    return text.substr(begin, at - begin);
  }

  bool skip(char c)
  {
    bool const found = at < text.size() && text[at] == c;
    at += found ? 1 : 0;
    return found;
  }

  void append_number(std::string const& whole, std::string_view decimals, std::string& bytes) const
  {
    std::string number = whole + '.';
    number += decimals;
    axsDecimal::Parts value;
    if (!axsDecimal::parse(number, value))
      value = {};
    value.negative = negative;
    axsDecimal::append(value, bytes);
  }

  std::string_view text;
  std::size_t at = 0;
  bool negative = false;
  std::string_view parts[part_count];
  std::string_view fraction;
};

// So many that the seconds of all of them are far from the largest number.
std::size_t const max_digits = 12;

// A span that can be computed with: its months, whole seconds (rounded down) and what it has beyond them.
struct Span
{
  std::int64_t months = 0;
  std::int64_t seconds = 0;
  std::string fraction; // digits, of the part of a second to be added
};

// Whether the number is one of at most max_digits digits before the point.
bool to_span_part(axsDecimal::Number const& number, std::int64_t& whole, std::string& fraction)
{
  if (number.exponent > static_cast<std::int64_t>(max_digits))
    return false;
  std::string digits = number.digits;
  if (number.exponent < 0)
    digits.insert(0, static_cast<std::size_t>(-number.exponent), '0');
  auto const before_point = static_cast<std::size_t>(std::max<std::int64_t>(number.exponent, 0));
  if (digits.size() < before_point)
    digits.resize(before_point, '0');
  whole = 0;
  for (char const digit : std::string_view(digits).substr(0, before_point))
    whole = whole * 10 + (digit - '0');
  fraction = digits.substr(before_point);
  if (!number.negative)
    return true;
  // Rounded down, with what is missing to the next second.
  whole = fraction.empty() ? -whole : -whole - 1;
  for (char& digit : fraction)
    digit = static_cast<char>('0' + '9' - digit);
  if (!fraction.empty())
    ++fraction.back();
  return true;
}

// The days from the first of March of the year 0 to the first of a month, counted from 0, of the proleptic Gregorian
// calendar.
std::int64_t days_to(std::int64_t months_of_year_0)
{
  std::int64_t const from_march = months_of_year_0 - 2;
  std::int64_t const year = from_march >= 0 ? from_march / 12 : -((11 - from_march) / 12);
  std::int64_t const month = from_march - year * 12;
  std::int64_t const era = year >= 0 ? year / 400 : -((399 - year) / 400);
  std::int64_t const year_of_era = year - era * 400;
  return era * 146097 + year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + (month * 153 + 2) / 5;
}

// The points from which Part 2, 3.2.6.2 compares, as months of the year 0: 1696-09, 1697-02, 1903-03, 1903-07, each at
// the first day.
std::int64_t const origins[] = {1696 * 12 + 8, 1697 * 12 + 1, 1903 * 12 + 2, 1903 * 12 + 6};

Order compare_from(std::int64_t origin, Span const& left, Span const& right)
{
  std::int64_t const day_seconds = 86400;
  std::int64_t const days = days_to(origin + left.months) - days_to(origin + right.months);
  std::int64_t const difference = days * day_seconds + left.seconds - right.seconds;
  int const compared = difference != 0 ? (difference < 0 ? -1 : 1) : left.fraction.compare(right.fraction);
  if (compared == 0)
    return Order::equal;
  return compared < 0 ? Order::less : Order::greater;
}

Order compare_spans(Span const& left, Span const& right)
{
  Order const first = compare_from(origins[0], left, right);
  bool const agree = std::all_of(std::begin(origins), std::end(origins),
    [&](std::int64_t origin) { return compare_from(origin, left, right) == first; });
  return agree ? first : Order::none;
}

bool take_span(std::string_view bytes, Span& span)
{
  std::string no_fraction;
  axsDecimal::Number const months = axsDecimal::take(bytes);
  axsDecimal::Number const seconds = axsDecimal::take(bytes);
  return to_span_part(months, span.months, no_fraction) && to_span_part(seconds, span.seconds, span.fraction);
}

// About how many seconds a number of months or seconds is; INF where that is beyond a double.
double about(axsDecimal::Number const& number, double unit)
{
  std::string const digits = "0." + number.digits + "e" + std::to_string(number.exponent);
  double value = 0;
  auto const read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (read.ec == std::errc::result_out_of_range && number.exponent > 0)
    value = std::numeric_limits<double>::infinity();
  return (number.negative ? -value : value) * unit;
}

// Of spans too large to be computed with: a month is 1/4800 of 400 years, of which it is at most days off. That is nothing beside
// what they differ by, or they are so near each other that nothing is said.
Order compare_large(std::string_view left, std::string_view right)
{
  double const month_seconds = 146097.0 * 24 * 60 * 60 / 4800;
  double const months = about(axsDecimal::take(left), month_seconds) - about(axsDecimal::take(right), month_seconds);
  double const seconds = about(axsDecimal::take(left), 1) - about(axsDecimal::take(right), 1);
  double const difference = months + seconds;
  double const certain = (std::abs(months) + std::abs(seconds)) * 1e-6;
  if (!(std::abs(difference) > certain))
    return Order::none;
  return difference < 0 ? Order::less : Order::greater;
}

// The bytes of the months at the beginning of those of a span.
std::string_view months_of(std::string_view bytes)
{
  std::string_view rest = bytes;
  axsDecimal::take(rest);
  return bytes.substr(0, bytes.size() - rest.size());
}

Order order_of(int compared) noexcept
{
  if (compared == 0)
    return Order::equal;
  return compared < 0 ? Order::less : Order::greater;
}
}

bool axsDuration::append(std::string_view text, std::string& bytes)
{
  return Reader(text).append(bytes);
}

Order axsDuration::compare(std::string_view left, std::string_view right)
{
  std::string_view const left_months = months_of(left);
  std::string_view const right_months = months_of(right);
  Order const by_months = order_of(left_months.compare(right_months));
  Order const by_seconds = order_of(left.substr(left_months.size()).compare(right.substr(right_months.size())));
  if (by_seconds == by_months || by_seconds == Order::equal)
    return by_months;
  if (by_months == Order::equal)
    return by_seconds;
  Span left_span;
  Span right_span;
  return take_span(left, left_span) && take_span(right, right_span) ? compare_spans(left_span, right_span)
                                                                    : compare_large(left, right);
}
