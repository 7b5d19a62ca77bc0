#pragma once

#include "axsCharacters.h"

#include <apByteBlock.h>

#include <cstddef>

/// Finds the end of text between tags, many bytes at a time, in well-formed UTF-8 without U+FFFE and U+FFFF, where all
/// beyond ASCII is text: the first '<', '&', ']' or control character other than tab and line feed (XML 1.0, 2.4).
namespace axsTextScan
{
/// So many bytes after the one that it stops at may be looked at, too, and must be there.
inline constexpr std::size_t overreach = 32;

/// The ways to find it, from the one that every machine has to the fastest of this one.
using Way = char const* (*)(char const* at) noexcept;
char const* end_by_words(char const* at) noexcept;
char const* end_by_blocks(char const* at) noexcept;
Way fastest() noexcept;

/// end() in the fastest way.
char const* end_of_long(char const* at) noexcept;

/// The first byte at or after `at` that text ends at.
inline char const* end(char const* at) noexcept
{
  // Most texts are too short to choose a way for.
  auto const found = axsCharacters::ends_of_utf8_text<'<', '&', ']'>(apByteBlock(at));
  return found.any() ? at + found.first() : end_of_long(at + apByteBlock::size);
}
}
