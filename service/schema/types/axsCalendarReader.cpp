#include "axsCalendarReader.h"

#include "axsDecimal.h"

using Fault = axsCalendar::Fault;

namespace
{
bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}
}

axsCalendar::Fault axsCalendarReader::read(axsPrimitive type)
{
  if (type != axsPrimitive::time)
    read_date_parts(type);
  if (type == axsPrimitive::date_time)
    expect('T');
  bool const is_past_midnight = type == axsPrimitive::date_time;
  if (type == axsPrimitive::date_time || type == axsPrimitive::time)
    read_time();
  read_zone();
  if (at != text.size())
    fail(Fault::form);
  if (fault == Fault::none && into.day > into.days_in_month())
    fail(Fault::day);
  // 24:00:00 is the first instant of the following day; of time, of any.
  if (fault == Fault::none && into.hour == 24)
  {
    into.hour = 0;
    if (is_past_midnight)
      into.add_day();
  }
  return fault;
}

void axsCalendarReader::read_date_parts(axsPrimitive type)
{
  bool const has_year = type <= axsPrimitive::g_year;
  bool const has_month = type != axsPrimitive::g_year && type != axsPrimitive::g_day;
  bool const has_day =
    type != axsPrimitive::g_year_month && type != axsPrimitive::g_year && type != axsPrimitive::g_month;
  if (has_year)
    read_year();
  else
    expect('-');
  if (has_month)
    read_month();
  else if (!has_year)
    expect('-');
  if (has_day)
    read_day();
}

// At least four digits, no more of them than needed (3.2.7.1).
void axsCalendarReader::read_year()
{
  into.before_christ = at < text.size() && text[at] == '-';
  at += into.before_christ ? 1 : 0;
  std::size_t end = at;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  std::string_view const digits = text.substr(at, end - at);
  at = end;
  if (digits.size() < 4 || (digits.size() > 4 && digits.front() == '0'))
    return fail(Fault::form);
  std::size_t const first = digits.find_first_not_of('0');
  if (first == std::string_view::npos)
    return fail(Fault::year);
  into.year.assign(digits.substr(first));
}

void axsCalendarReader::read_month()
{
  expect('-');
  into.month = number_of_two(1, 12, Fault::month);
}

void axsCalendarReader::read_day()
{
  expect('-');
  into.day = number_of_two(1, 31, Fault::day);
}

void axsCalendarReader::read_time()
{
  into.hour = number_of_two(0, 24, Fault::hour);
  expect(':');
  into.minute = number_of_two(0, 59, Fault::minute);
  expect(':');
  into.second = number_of_two(0, 59, Fault::second);
  if (at < text.size() && text[at] == '.')
    read_fraction();
  if (into.hour == 24 && (into.minute != 0 || into.second != 0 || !into.fraction.empty()))
    fail(Fault::hour);
}

void axsCalendarReader::read_fraction()
{
  std::size_t end = ++at;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  std::string_view const digits = text.substr(at, end - at);
  at = end;
  if (digits.empty())
    return fail(Fault::form);
  axsDecimal::append_fraction(digits.substr(0, digits.find_last_not_of('0') + 1), into.fraction);
}

void axsCalendarReader::read_zone()
{
  if (at >= text.size())
    return;
  char const sign = text[at];
  if (sign != 'Z' && sign != '+' && sign != '-')
    return fail(Fault::form);
  ++at;
  into.has_zone = true;
  if (sign == 'Z')
    return;
  int const hours = number_of_two(0, 14, Fault::zone);
  expect(':');
  int const minutes = number_of_two(0, hours == 14 ? 0 : 59, Fault::zone);
  into.zone = (sign == '-' ? -1 : 1) * (hours * 60 + minutes);
}

void axsCalendarReader::expect(char c)
{
  if (at < text.size() && text[at] == c)
    ++at;
  else
    fail(Fault::form);
}

int axsCalendarReader::two_digits()
{
  if (text.size() - at < 2 || !is_digit(text[at]) || !is_digit(text[at + 1]))
  {
    fail(Fault::form);
    return -1;
  }
  int const number = (text[at] - '0') * 10 + (text[at + 1] - '0');
  at += 2;
  return number;
}

int axsCalendarReader::number_of_two(int least, int largest, Fault otherwise)
{
  int const number = two_digits();
  if (number >= least && number <= largest)
    return number;
  fail(otherwise);
  return least;
}

// A text of another form is told as that, whatever else may be wrong with it.
void axsCalendarReader::fail(Fault why)
{
  if (fault == Fault::none || why == Fault::form)
    fault = why;
}
