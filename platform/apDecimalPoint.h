#pragma once

#include <cstdio>
#include <cwchar>

#if defined(__has_include)
#  if __has_include(<langinfo.h>)
#    include <langinfo.h>
#  endif
#endif

/// The decimal point of the current C locale. Safe from several threads at once, as long as none changes the locale.
class apDecimalPoint
{
public:
  /// The character that stands after the 1 where the C library writes 1.2; '.' where it cannot be told.
  static wchar_t of_locale() noexcept
  {
#if defined(RADIXCHAR)
    char const* const point = nl_langinfo(RADIXCHAR);
#else
    char sample[8] = "";
    std::snprintf(sample, sizeof sample, "%2.1f", 1.2);
    char const* const point = sample + 1;
#endif
    // As good as always: an ASCII character.
    if (static_cast<signed char>(point[0]) > 0)
      return static_cast<wchar_t>(point[0]);
    wchar_t character = L'.';
    std::mbstate_t state{};
    // Of what it can be else, two bytes are looked at.
    return std::mbrtowc(&character, point, 2, &state) <= 2 ? character : L'.';
  }
};
