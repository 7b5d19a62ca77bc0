#pragma once

#include "axsUtf8Scan.h"

#include <utUtf8.h>

#include <bitset>
#include <cstddef>
#include <cstdint>

/// What the ways of axsUtf8Scan::skip() have in common.
namespace axsUtf8Chunks
{
/// Each bit so many places on, those of the chunk before first.
inline std::uint64_t moved(std::uint64_t bits, std::uint64_t before, int places) noexcept
{
  return bits << places | before >> (64 - places);
}

/// The end of whole characters, of which those from `begin` to `at` are well-formed as far as that goes.
inline char const* end_of_whole(char const* begin, char const* at) noexcept
{
  for (std::ptrdiff_t back = 1; back < static_cast<std::ptrdiff_t>(utUtf8::max_bytes) && back <= at - begin; ++back)
    if (!utUtf8::is_continuation(at[-back]))
      return static_cast<std::ptrdiff_t>(utUtf8::length_from_first(at[-back])) > back ? at - back : at;
  return at;
}

/// Counts the line ends of chunks, one after the other.
class LineEnds
{
public:
  /// Goes on from what has been seen.
  explicit LineEnds(axsUtf8Scan::Seen const& seen) noexcept
    : count(seen.line_ends),
      returns_before(static_cast<std::uint64_t>(seen.ends_with_return) << (axsUtf8Scan::chunk - 1))
  {
  }

  /// Which bytes of the next chunk are returns and line feeds.
  void add(std::uint64_t returns, std::uint64_t feeds) noexcept
  {
    count += std::bitset<axsUtf8Scan::chunk>(returns | (feeds & ~moved(returns, returns_before, 1))).count();
    returns_before = returns;
  }

  /// Writes them down; a return before what is given back again is not told: no line feed comes there.
  void tell(axsUtf8Scan::Seen& seen) const noexcept
  {
    seen.line_ends = count;
    seen.ends_with_return = returns_before >> (axsUtf8Scan::chunk - 1) != 0;
  }

private:
  std::uint64_t count;
  std::uint64_t returns_before;
};
}
