#include "axsLocator.h"

#include <climits>
#include <cstdint>

namespace
{
int number_of(std::uint64_t number)
{
  return number == 0 || number > INT_MAX ? -1 : static_cast<int>(number);
}
}

axsReadError axsLocator::error(apString const& message, axsPlace place) const
{
  return {message, url(), number_of(place.line), number_of(place.column)};
}
