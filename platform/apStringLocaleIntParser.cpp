#include "apStringLocaleIntParser.h"

#include <climits>
#include <cwctype>

apStringLocaleIntParser::Result apStringLocaleIntParser::parse(apString const& text) noexcept
{
  wchar_t const* const begin = text.c_str();
  wchar_t const* at = begin;
  // A digit is no white space, and needs no question to the locale.
  while ((*at < L'0' || *at > L'9') && std::iswspace(static_cast<std::wint_t>(*at)) != 0)
    ++at;

  bool const negative = *at == L'-';
  if (negative || *at == L'+')
    ++at;

  long long value = 0;
  wchar_t const* const digits = at;
  for (; *at >= L'0' && *at <= L'9'; ++at)
  {
    value = value * 10 + (*at - L'0');
    if (value > static_cast<long long>(INT_MAX) + (negative ? 1 : 0))
      return {false, 0, 0};
  }
  if (at == digits)
    return {false, 0, 0};
  return {true, static_cast<int>(at - begin), static_cast<int>(negative ? -value : value)};
}
