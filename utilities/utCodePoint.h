#pragma once

#include <cstdint>

/// What a decoder finds at the beginning of some bytes or units: a code point, or why there is none.
struct utCodePoint
{
  static constexpr char32_t last = 0x10FFFF;

  /// No bytes that follow could make it a code point.
  static constexpr char32_t ill_formed = 0xFFFFFFFF;

  /// It is the beginning of a code point, the rest of which would stand after the end.
  static constexpr char32_t cut_off = 0xFFFFFFFE;

  /// What stands for ill-formed text where text has to go on.
  static constexpr char32_t replacement = 0xFFFD;

  char32_t code;

  /// How many bytes or units it takes, 1 at least. Of what is no code point: the longest beginning that one can have (The
  /// Unicode Standard, 3.9, "Substitution of Maximal Subparts").
  std::uint32_t length;

  constexpr bool is_valid() const noexcept { return code <= last; }
  constexpr bool is_cut_off() const noexcept { return code == cut_off; }

  /// The code point, or U+FFFD where there is none.
  constexpr char32_t or_replacement() const noexcept { return is_valid() ? code : replacement; }
};
