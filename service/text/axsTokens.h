#pragma once

#include <string>
#include <string_view>

/// Values that consist of tokens (XML 1.0, 3.3.3).
namespace axsTokens
{
/// As a reader makes it: without spaces at its ends, and with one between two tokens. Throws std::bad_alloc when memory runs
/// out.
inline std::string collapsed(std::string_view value)
{
  std::string made;
  for (char const c : value)
    if (c != ' ' || (!made.empty() && made.back() != ' '))
      made += c;
  if (!made.empty() && made.back() == ' ')
    made.pop_back();
  return made;
}

/// Whether a reader leaves it as it is.
inline bool is_collapsed(std::string_view value) noexcept
{
  return value.empty() || (value.front() != ' ' && value.back() != ' ' && value.find("  ") == std::string_view::npos);
}
}
