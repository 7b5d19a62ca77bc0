#pragma once

#include <utString.h>

#include <cstring>

// The text from `begin` to `end`, both in a text that `text_end`, its NUL, ends. Not installed.
[[gnu::always_inline]] inline utString axm_text(char const* begin, char const* end, char const* text_end)
{
  int const length = static_cast<int>(end - begin);
  if (length <= utString::max_inside && text_end - begin > utString::max_inside)
    // A copy of a fixed size is faster than one of the few bytes that are needed.
    return utString::written(length, [begin](char* to) { std::memcpy(to, begin, utString::max_inside + 1); });
  return utString(begin, length);
}
