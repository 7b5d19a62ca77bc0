// Regular expressions of XML Schema, any bytes, and values for them: what is no expression is refused with a place in it, and
// what is one says of a short value what a plain backtracker says.

#include "Backtracker.h"

#include <axsPattern.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace
{
// What the backtracker knows; names and escapes of Unicode are not among it, nor counts that it would be long at.
bool is_known(std::string_view expression)
{
  std::size_t digits = 0;
  for (char const c : expression)
  {
    digits = c >= '0' && c <= '9' ? digits + 1 : 0;
    if (digits > 1 || c < ' ' || c > '~')
      return false;
  }
  for (std::size_t at = expression.find('\\'); at != std::string_view::npos; at = expression.find('\\', at + 2))
    if (at + 1 < expression.size() &&
        std::string_view("iIcCdDwWsSpPnrt").find(expression[at + 1]) != std::string_view::npos)
      return false;
  return true;
}

bool is_plain(std::string_view value)
{
  return value.size() <= 12 && std::all_of(value.begin(), value.end(), [](char c) { return c >= ' ' && c <= '~'; });
}
}

// The expression ends with the first line; the other lines are values.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::string_view rest(reinterpret_cast<char const*>(data), size);
  std::string_view const expression = rest.substr(0, rest.find('\n'));
  axsPattern::Fault fault;
  auto const pattern = axsPattern::compile(expression, fault);
  if (pattern == nullptr)
  {
    if (fault.text.empty() || fault.character == 0 || fault.character > expression.size() + 1)
      std::abort();
    return 0;
  }
  bool const has_judge = expression.size() <= 40 && is_known(expression);
  while (rest.find('\n') != std::string_view::npos)
  {
    rest.remove_prefix(rest.find('\n') + 1);
    std::string_view const value = rest.substr(0, rest.find('\n'));
    bool const matched = pattern->matches(value);
    if (has_judge && is_plain(value) && backtracker::matches(expression, value) != matched)
      std::abort();
  }
  return 0;
}
