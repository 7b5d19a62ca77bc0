#pragma once

#include <apByteBlock.h>
#include <utXmlCharacter.h>

#include <cstddef>

// Searches over a few characters, for which a call of the C library is too much. `end` points to the NUL that ends the
// text; one before it ends a search as well. Not installed.

// Whether a block can be read at `at`, and the text goes on at least so far.
inline bool axm_has_block(char const* at, char const* end)
{
  return end - at >= static_cast<std::ptrdiff_t>(apByteBlock::size);
}

// The place of the first `c` or NUL from `at` on.
inline char const* axm_find(char const* at, char const* end, char c)
{
  for (; axm_has_block(at, end); at += apByteBlock::size)
  {
    apByteBlock const block(at);
    auto const found = block.is(c) | block.is('\0');
    if (found.any())
      return at + found.first();
  }
  while (*at != c && *at != '\0')
    ++at;
  return at;
}

// The place of the first character from `at` on that is no white space.
inline char const* axm_find_no_space(char const* at, char const* end)
{
  std::uint32_t const all = (1u << apByteBlock::size) - 1;
  for (; axm_has_block(at, end); at += apByteBlock::size)
  {
    apByteBlock const block(at);
    std::uint32_t const other = (block.is(' ') | block.is('\n') | block.is('\t') | block.is('\r')).bits() ^ all;
    if (other != 0)
      return at + apBits::lowest(other);
  }
  while (utXmlCharacter::is_space(*at))
    ++at;
  return at;
}
