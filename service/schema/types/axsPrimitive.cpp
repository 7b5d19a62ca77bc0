#include "axsPrimitive.h"

#include <cstddef>

namespace
{
std::string_view const names[] = {"anySimpleType", "string", "boolean", "decimal", "float", "double", "duration",
  "dateTime", "time", "date", "gYearMonth", "gYear", "gMonthDay", "gDay", "gMonth", "hexBinary", "base64Binary",
  "anyURI", "QName", "NOTATION"};
}

std::string_view axsPrimitives::name(axsPrimitive primitive) noexcept
{
  return names[static_cast<std::size_t>(primitive)];
}

bool axsPrimitives::is_ordered(axsPrimitive primitive) noexcept
{
  return primitive >= axsPrimitive::decimal && primitive <= axsPrimitive::g_month;
}

bool axsPrimitives::is_calendar(axsPrimitive primitive) noexcept
{
  return primitive >= axsPrimitive::date_time && primitive <= axsPrimitive::g_month;
}
