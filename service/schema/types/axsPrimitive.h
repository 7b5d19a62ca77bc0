#pragma once

#include <string_view>

/// The primitive types (XML Schema Part 2, 3.2). Values of two different ones are never equal and never in order.
enum class axsPrimitive : unsigned char
{
  none, // of anySimpleType, lists and unions
  string,
  boolean,
  decimal,
  float32,
  float64,
  duration,
  date_time,
  time,
  date,
  g_year_month,
  g_year,
  g_month_day,
  g_day,
  g_month,
  hex_binary,
  base64_binary,
  any_uri,
  qname,
  notation
};

namespace axsPrimitives
{
/// The local name in the namespace of XML Schema; "anySimpleType" of none.
std::string_view name(axsPrimitive primitive) noexcept;

/// Whether values have an order (Part 2, 4.2.2), total or partial.
bool is_ordered(axsPrimitive primitive) noexcept;

/// Whether a value is a point or span of time of the Gregorian calendar: date_time to g_month.
bool is_calendar(axsPrimitive primitive) noexcept;
}
