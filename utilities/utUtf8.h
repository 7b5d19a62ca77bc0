#pragma once

#include "utCodePoint.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// UTF-8, strict as The Unicode Standard has it (3.9, table 3-7): overlong forms, surrogates and numbers beyond U+10FFFF
/// are ill-formed. Nothing here allocates, except append(). Safe from several threads at once.
namespace utUtf8
{
/// The bytes that a code point takes at most.
inline constexpr std::size_t max_bytes = 4;

/// Whether the byte is a second, third or fourth one.
constexpr bool is_continuation(char byte) noexcept
{
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

constexpr bool is_ascii(char byte) noexcept
{
  return static_cast<unsigned char>(byte) < 0x80;
}

/// The bytes that a code point takes whose first one is `byte`, in text that is well-formed.
constexpr std::size_t length_from_first(char byte) noexcept
{
  auto const first = static_cast<unsigned char>(byte);
  return first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// The code point at `at`, which must be before `end`.
inline utCodePoint decode(char const* at, char const* end) noexcept
{
  auto const byte = [at](int i) { return static_cast<unsigned char>(at[i]); };
  unsigned const first = byte(0);
  if (first < 0x80)
    return {first, 1};
  std::ptrdiff_t const size = end - at;
  if (first < 0xE0)
  {
    if (first < 0xC2)
      return {utCodePoint::ill_formed, 1};
    if (size < 2)
      return {utCodePoint::cut_off, 1};
    if (!is_continuation(at[1]))
      return {utCodePoint::ill_formed, 1};
    return {(first & 0x1Fu) << 6 | (byte(1) & 0x3Fu), 2};
  }
  if (first > 0xF4)
    return {utCodePoint::ill_formed, 1};
  if (size < 2)
    return {utCodePoint::cut_off, 1};

  // Second bytes below have a shorter form; those above make a surrogate or a number beyond the last one.
  unsigned const lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
  unsigned const highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
  if (byte(1) < lowest || byte(1) > highest)
    return {utCodePoint::ill_formed, 1};
  if (size < 3)
    return {utCodePoint::cut_off, 2};
  if (!is_continuation(at[2]))
    return {utCodePoint::ill_formed, 2};
  if (first < 0xF0)
    return {(first & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu), 3};
  if (size < 4)
    return {utCodePoint::cut_off, 3};
  if (!is_continuation(at[3]))
    return {utCodePoint::ill_formed, 3};
  return {(first & 0x07u) << 18 | (byte(1) & 0x3Fu) << 12 | (byte(2) & 0x3Fu) << 6 | (byte(3) & 0x3Fu), 4};
}

/// The bytes that encode() writes for `code`.
constexpr std::size_t encoded_length(char32_t code) noexcept
{
  return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

/// Writes the code point `code` to `to`, where there is room, and returns the end of what was written.
inline char* encode(char32_t code, char* to) noexcept
{
  auto const put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
  if (code < 0x80)
  {
    put(code);
    return to;
  }
  if (code < 0x800)
    put(0xC0 | code >> 6);
  else
  {
    if (code < 0x10000)
      put(0xE0 | code >> 12);
    else
    {
      put(0xF0 | code >> 18);
      put(0x80 | (code >> 12 & 0x3F));
    }
    put(0x80 | (code >> 6 & 0x3F));
  }
  put(0x80 | (code & 0x3F));
  return to;
}

/// Adds the code point `code` to `text`. Throws std::bad_alloc when memory runs out.
inline void append(char32_t code, std::string& text)
{
  char bytes[max_bytes];
  text.append(bytes, static_cast<std::size_t>(encode(code, bytes) - bytes));
}

/// The place of the first byte of `text` that begins no code point, or of which a code point is cut off; npos if the text
/// is well-formed. O(n).
inline std::size_t find_ill_formed(std::string_view text) noexcept
{
  char const* at = text.data();
  char const* const end = at + text.size();
  while (at != end)
  {
    std::uint64_t word = 0;
    if (end - at >= static_cast<std::ptrdiff_t>(sizeof word))
    {
      std::memcpy(&word, at, sizeof word);
      if ((word & 0x8080808080808080u) == 0)
      {
        at += sizeof word;
        continue;
      }
    }
    utCodePoint const found = decode(at, end);
    if (!found.is_valid())
      return static_cast<std::size_t>(at - text.data());
    at += found.length;
  }
  return std::string_view::npos;
}

/// The code points of well-formed `text`. O(n).
inline std::size_t count(std::string_view text) noexcept
{
  std::size_t number = 0;
  for (char const byte : text)
    number += is_continuation(byte) ? 0 : 1;
  return number;
}
}
