#include "axsCalendar.h"

#include "axsCalendarReader.h"
#include "axsDecimal.h"

#include <cstddef>
#include <iterator>
#include <utility>

using Order = axsValue::Order;

namespace
{
int const day_minutes = 24 * 60;
// As far as a time zone can be off UTC (Part 2, 3.2.7.3).
int const largest_zone = 14 * 60;

char const local_mark = 0;
char const zone_mark = 1;

Order order_of(int compared) noexcept
{
  if (compared == 0)
    return Order::equal;
  return compared < 0 ? Order::less : Order::greater;
}

Order reversed(Order order) noexcept
{
  if (order == Order::less)
    return Order::greater;
  return order == Order::greater ? Order::less : order;
}
}

axsCalendar::Fault axsCalendar::read(axsPrimitive type, std::string_view text)
{
  return axsCalendarReader(text, *this).read(type);
}

bool axsCalendar::is_leap_year() const noexcept
{
  // 10000 is divisible by 400.
  int last = 0;
  for (char const digit : std::string_view(year).substr(year.size() < 4 ? 0 : year.size() - 4))
    last = last * 10 + (digit - '0');
  return last % 4 == 0 && (last % 100 != 0 || last % 400 == 0);
}

int axsCalendar::days_in_month() const noexcept
{
  if (month == 2)
    return is_leap_year() ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

void axsCalendar::append(std::string& bytes)
{
  if (has_zone)
    set_minutes(hour * 60 + minute - zone);
  zone = 0;
  append_local(bytes);
}

void axsCalendar::append_local(std::string& bytes) const
{
  bytes += has_zone ? zone_mark : local_mark;
  axsDecimal::Parts number;
  number.negative = before_christ;
  number.whole = year;
  axsDecimal::append(number, bytes);
  for (int const part : {month, day, hour, minute, second})
    bytes += static_cast<char>(part);
  bytes += fraction;
}

axsCalendar axsCalendar::from_bytes(std::string_view bytes)
{
  axsCalendar made;
  made.has_zone = bytes.front() == zone_mark;
  bytes.remove_prefix(1);
  axsDecimal::Number number = axsDecimal::take(bytes);
  made.before_christ = number.negative;
  number.digits.resize(static_cast<std::size_t>(number.exponent), '0');
  made.year = std::move(number.digits);
  int* const parts[] = {&made.month, &made.day, &made.hour, &made.minute, &made.second};
  for (std::size_t i = 0; i < std::size(parts); ++i)
    *parts[i] = static_cast<unsigned char>(bytes[i]);
  made.fraction = bytes.substr(std::size(parts));
  return made;
}

Order axsCalendar::compare(std::string_view left, std::string_view right)
{
  if (left.front() == right.front())
    return order_of(left.compare(right));
  return left.front() == zone_mark ? compare_with_zone(left, right) : reversed(compare_with_zone(right, left));
}

// Part 2, 3.2.7.4: the order holds if it does whatever the time zone of the other.
Order axsCalendar::compare_with_zone(std::string_view zoned, std::string_view local)
{
  auto const in_zone = [local](int offset)
  {
    axsCalendar point = from_bytes(local);
    point.has_zone = true;
    point.zone = offset;
    std::string bytes;
    point.append(bytes);
    return bytes;
  };
  if (zoned < in_zone(largest_zone))
    return Order::less;
  return zoned > in_zone(-largest_zone) ? Order::greater : Order::none;
}

// The minutes may be up to a day before or after the day.
void axsCalendar::set_minutes(int of_day)
{
  if (of_day < 0)
  {
    take_day();
    of_day += day_minutes;
  }
  else if (of_day >= day_minutes)
  {
    add_day();
    of_day -= day_minutes;
  }
  hour = of_day / 60;
  minute = of_day % 60;
}

void axsCalendar::add_day()
{
  if (++day <= days_in_month())
    return;
  day = 1;
  if (++month <= 12)
    return;
  month = 1;
  add_year();
}

void axsCalendar::take_day()
{
  if (--day > 0)
    return;
  if (--month == 0)
  {
    month = 12;
    take_year();
  }
  day = days_in_month();
}

// There is no year 0: -0001 is the year before 0001 (3.2.7, note).
void axsCalendar::add_year()
{
  if (!before_christ)
    raise_year();
  else if (year == "1")
    before_christ = false;
  else
    lower_year();
}

void axsCalendar::take_year()
{
  if (before_christ)
    raise_year();
  else if (year == "1")
    before_christ = true;
  else
    lower_year();
}

void axsCalendar::raise_year()
{
  for (auto digit = year.rbegin(); digit != year.rend(); ++digit)
  {
    if (*digit != '9')
    {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  year.insert(year.begin(), '1');
}

// The year is at least 2.
void axsCalendar::lower_year()
{
  for (auto digit = year.rbegin(); digit != year.rend(); ++digit)
  {
    if (*digit != '0')
    {
      --*digit;
      break;
    }
    *digit = '9';
  }
  if (year.front() == '0')
    year.erase(0, 1);
}
