#pragma once

#include "utCodePoint.h"

#include <cstddef>

/// UTF-16 (The Unicode Standard, 3.9) in units of any type that has 16 bits. Safe from several threads at once.
namespace utUtf16
{
constexpr bool is_high_surrogate(char32_t unit) noexcept
{
  return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool is_low_surrogate(char32_t unit) noexcept
{
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool is_surrogate(char32_t unit) noexcept
{
  return unit >= 0xD800 && unit <= 0xDFFF;
}

/// The code point at `at`, which must be before `end`; a surrogate without its other half is ill-formed or, at the end,
/// may be cut off.
template <class Unit>
utCodePoint decode(Unit const* at, Unit const* end) noexcept
{
  static_assert(sizeof(Unit) == 2);
  char32_t const first = static_cast<char16_t>(*at);
  if (!is_surrogate(first))
    return {first, 1};
  if (!is_high_surrogate(first))
    return {utCodePoint::ill_formed, 1};
  if (end - at < 2)
    return {utCodePoint::cut_off, 1};
  char32_t const second = static_cast<char16_t>(at[1]);
  if (!is_low_surrogate(second))
    return {utCodePoint::ill_formed, 1};
  return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 2};
}

/// The units that encode() writes for `code`.
constexpr std::size_t encoded_length(char32_t code) noexcept
{
  return code < 0x10000 ? 1 : 2;
}

/// Writes the code point `code` to `to`, where there is room, and returns the end of what was written.
template <class Unit>
Unit* encode(char32_t code, Unit* to) noexcept
{
  static_assert(sizeof(Unit) == 2);
  if (code < 0x10000)
  {
    *to++ = static_cast<Unit>(code);
    return to;
  }
  *to++ = static_cast<Unit>(0xD800 + ((code - 0x10000) >> 10));
  *to++ = static_cast<Unit>(0xDC00 + ((code - 0x10000) & 0x3FF));
  return to;
}
}
