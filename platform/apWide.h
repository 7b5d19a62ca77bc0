#pragma once

#include <utCodePoint.h>
#include <utUtf16.h>

#include <cstddef>

/// Wide text by code points: UTF-16 where `wchar_t` has 16 bits, UTF-32 where it has 32. Safe from several threads at once.
namespace apWide
{
/// The code point at `at`, which must be before `end`.
inline utCodePoint decode(wchar_t const* at, wchar_t const* end) noexcept
{
  if constexpr (sizeof(wchar_t) == 2)
    return utUtf16::decode(at, end);
  else
  {
    auto const code = static_cast<char32_t>(*at);
    return {utUtf16::is_surrogate(code) || code > utCodePoint::last ? utCodePoint::ill_formed : code, 1};
  }
}

/// The characters that encode() writes for `code`.
constexpr std::size_t encoded_length(char32_t code) noexcept
{
  return sizeof(wchar_t) == 2 ? utUtf16::encoded_length(code) : 1;
}

/// Writes the code point `code` to `to`, where there is room, and returns the end of what was written.
inline wchar_t* encode(char32_t code, wchar_t* to) noexcept
{
  if constexpr (sizeof(wchar_t) == 2)
    return utUtf16::encode(code, to);
  else
  {
    *to = static_cast<wchar_t>(code);
    return to + 1;
  }
}
}
