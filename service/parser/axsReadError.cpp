#include "axsReadError.h"

#include <climits>
#include <cstdint>

namespace
{
int number_of(std::uint64_t number)
{
  return number == 0 || number > INT_MAX ? -1 : static_cast<int>(number);
}
}

axsReadError axsReadError::at(apString const& message, apString const& url, axsPlace place)
{
  return {message, url, number_of(place.line), number_of(place.column)};
}

axmParseError axsReadError::record() const
{
  axmParseError made(message);
  made.set_url(url);
  made.set_line_number(line);
  made.set_column_number(column);
  return made;
}
