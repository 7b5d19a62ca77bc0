#pragma once

#include "axsCalendar.h"

#include <cstddef>
#include <string_view>

/// Reads the lexical forms of the calendar types, one after the other part; the first fault stands.
class axsCalendarReader
{
public:
  axsCalendarReader(std::string_view given, axsCalendar& out) noexcept : text(given), into(out) {}

  axsCalendar::Fault read(axsPrimitive type);

private:
  void read_date_parts(axsPrimitive type);
  void read_year();
  void read_month();
  void read_day();
  void read_time();
  void read_fraction();
  void read_zone();
  void expect(char c);
  int two_digits();
  int number_of_two(int least, int largest, axsCalendar::Fault otherwise);
  void fail(axsCalendar::Fault why);

  std::string_view text;
  std::size_t at = 0;
  axsCalendar& into;
  axsCalendar::Fault fault = axsCalendar::Fault::none;
};
