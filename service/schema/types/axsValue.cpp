#include "axsValue.h"

#include "axsCalendar.h"
#include "axsDuration.h"

using Order = axsValue::Order;

namespace
{
Order order_of(int compared) noexcept
{
  if (compared == 0)
    return Order::equal;
  return compared < 0 ? Order::less : Order::greater;
}

// NaN is in order with nothing (Part 2, 3.2.5).
Order compare_floats(std::string_view left, std::string_view right)
{
  return left.empty() || right.empty() ? Order::none : order_of(left.compare(right));
}

Order compare_ordered(axsPrimitive primitive, std::string_view left, std::string_view right)
{
  if (primitive == axsPrimitive::decimal)
    return order_of(left.compare(right));
  if (axsPrimitives::is_calendar(primitive))
    return axsCalendar::compare(left, right);
  return primitive == axsPrimitive::duration ? axsDuration::compare(left, right) : compare_floats(left, right);
}
}

axsPrimitive axsValue::primitive() const noexcept
{
  return data.empty() ? axsPrimitive::none : static_cast<axsPrimitive>(data.front());
}

void axsValue::clear()
{
  data.clear();
  active = nullptr;
  names.clear();
}

Order axsValue::compare(std::string_view left, std::string_view right)
{
  if (left == right)
    return Order::equal;
  if (left.empty() || right.empty() || left.front() != right.front())
    return Order::none;
  auto const primitive = static_cast<axsPrimitive>(left.front());
  return axsPrimitives::is_ordered(primitive) ? compare_ordered(primitive, left.substr(1), right.substr(1))
                                              : Order::none;
}
