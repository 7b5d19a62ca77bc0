#pragma once

#include <utUtf8.h>

#include <cstddef>
#include <string_view>

/// Walks the characters of a value.
namespace axsCodePoint
{
/// What bytes that are no UTF-8 are read as; no character.
inline constexpr char32_t bad = 0xFFFFFFFF;

/// The character at `at`, which is less than the size of the text, and moves `at` after it.
inline char32_t next(std::string_view text, std::size_t& at) noexcept
{
  if (utUtf8::is_ascii(text[at]))
    return static_cast<unsigned char>(text[at++]);
  utCodePoint const found = utUtf8::decode(text.data() + at, text.data() + text.size());
  at += found.length;
  return found.is_valid() ? found.code : bad;
}
}
