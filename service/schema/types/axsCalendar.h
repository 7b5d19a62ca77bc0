#pragma once

#include "axsPrimitive.h"
#include "axsValue.h"

#include <string>
#include <string_view>

/// Points of time of the Gregorian calendar (XML Schema Part 2, 3.2.7 to 3.2.14), with years of any number of digits. What a
/// type does not have is that of an arbitrary point: a leap year, the first month, the first day, midnight.
class axsCalendar
{
public:
  /// What is wrong with a text.
  enum class Fault : unsigned char
  {
    none,
    form,
    year, // 0000
    month,
    day,
    hour,
    minute,
    second,
    zone
  };

  /// Reads the lexical form of the type, a calendar one, which the text is in as a whole.
  Fault read(axsPrimitive type, std::string_view text);

  /// After a fault of `day`: the number of days that the month has.
  int days_in_month() const noexcept;

  /// Appends the point of time, as UTC if it has a time zone, in a form that is the same exactly for the same point and that
  /// memcmp orders among those with a zone and among those without.
  void append(std::string& bytes);

  /// The order of two points appended (3.2.7.4): where only one has a time zone, the other may be up to 14 hours off.
  static axsValue::Order compare(std::string_view left, std::string_view right);

private:
  bool is_leap_year() const noexcept;
  void set_minutes(int of_day);
  void add_day();
  void take_day();
  void add_year();
  void take_year();
  void raise_year();
  void lower_year();
  void append_local(std::string& bytes) const;
  static axsCalendar from_bytes(std::string_view bytes);
  static axsValue::Order compare_with_zone(std::string_view zoned, std::string_view local);

  bool before_christ = false;
  std::string year = "1972";
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
  std::string fraction; // as axsDecimal::append_fraction has it
  bool has_zone = false;
  int zone = 0; // minutes before UTC

  friend class axsCalendarReader;
};
