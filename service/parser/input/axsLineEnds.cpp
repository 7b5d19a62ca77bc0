#include "axsLineEnds.h"

#include <algorithm>
#include <cstring>

namespace
{
using axsLineEnds::Rule;

// Whether a line end is complete with the byte at `at`, one that is not only the second half of a pair. Written without
// branches, as what follows is: compilers make vector code of it.
template <Rule rule>
unsigned char is_line_end(char const* at)
{
  bool const is_return = at[0] == '\r';
  bool const is_feed = (at[0] == '\n') & (at[-1] != '\r');
  if constexpr (rule == Rule::xml_1_0)
    return is_return | is_feed;
  // One of two or three bytes counts at its last one.
  bool const is_nel = (at[0] == '\x85') & (at[-1] == '\xC2') & (at[-2] != '\r');
  bool const is_ls = (at[0] == '\xA8') & (at[-1] == '\x80') & (at[-2] == '\xE2');
  return is_return | is_feed | is_nel | is_ls;
}

unsigned char is_feed(char const* at)
{
  return *at == '\n';
}

// What is left of a pair counts where a line begins, but is no line of its own.
template <Rule rule>
bool ends_line(char const* at)
{
  return is_line_end<rule>(at) != 0 || *at == '\n' ||
         (rule == Rule::xml_1_1 && *at == '\x85' && at[-1] == '\xC2' && at[-2] == '\r');
}

unsigned char units_of_utf16(char const* at)
{
  auto const byte = static_cast<unsigned char>(*at);
  bool const begins = (byte < 0x80) | (byte >= 0xC0);
  bool const is_pair = byte >= 0xF0;
  return static_cast<unsigned char>(begins + is_pair);
}

// The sum of `value`, at most 2 each, over all bytes.
template <unsigned char (*value)(char const*)>
std::size_t sum(char const* from, char const* to)
{
  // So many fit one byte: sixteen such sums lie side by side in a vector.
  std::ptrdiff_t const block = 120;
  std::size_t total = 0;
  while (from != to)
  {
    char const* const end = from + std::min(block, to - from);
    unsigned char part = 0;
    for (; from != end; ++from)
      part = static_cast<unsigned char>(part + value(from));
    total += part;
  }
  return total;
}

// How many lines end; most documents have line feeds only.
template <Rule rule>
std::size_t line_ends(char const* from, char const* to)
{
  auto const size = static_cast<std::size_t>(to - from);
  bool const is_simple = rule == Rule::xml_1_0 && from[-1] != '\r' && std::memchr(from, '\r', size) == nullptr;
  return is_simple ? sum<is_feed>(from, to) : sum<is_line_end<rule>>(from, to);
}

template <Rule rule>
char const* begin_of_line(char const* begin, char const* at)
{
  while (at != begin && !ends_line<rule>(at - 1))
    --at;
  return at;
}

// Behind what is left of a pair whose first half stands before `from`.
template <Rule rule>
char const* end_of_half(char const* from, char const* to)
{
  for (std::ptrdiff_t const length : {1, 2})
    if (to - from >= length && ends_line<rule>(from + length - 1))
      return from + length;
  return from;
}

template <Rule rule>
axsPlace after(axsPlace start, char const* from, char const* to, std::uint64_t lines)
{
  char const* const line = lines == 0 ? end_of_half<rule>(from, to) : begin_of_line<rule>(from, to);
  return {start.line + lines, (line == from ? start.column : 1) + sum<units_of_utf16>(line, to)};
}

template <Rule rule>
axsPlace before(axsPlace start, char const* begin, axsPlace place, char const* from, char const* to)
{
  std::size_t const lines = line_ends<rule>(to, from);
  if (lines == 0 && end_of_half<rule>(to, from) == to)
    return {place.line, place.column - sum<units_of_utf16>(to, from)};
  char const* const line = begin_of_line<rule>(begin, to);
  return {place.line - lines, (line == begin ? start.column : 1) + sum<units_of_utf16>(line, to)};
}
}

axsPlace axsLineEnds::place_after(axsPlace start, char const* from, char const* to, Rule rule) noexcept
{
  return rule == Rule::xml_1_0 ? after<Rule::xml_1_0>(start, from, to, line_ends<Rule::xml_1_0>(from, to))
                               : after<Rule::xml_1_1>(start, from, to, line_ends<Rule::xml_1_1>(from, to));
}

axsPlace axsLineEnds::place_after(axsPlace start, char const* from, char const* to, std::uint64_t lines) noexcept
{
  return after<Rule::xml_1_0>(start, from, to, lines);
}

std::size_t axsLineEnds::count(char const* from, char const* to) noexcept
{
  return line_ends<Rule::xml_1_0>(from, to);
}

axsPlace axsLineEnds::place_before(
  axsPlace start, char const* begin, axsPlace place, char const* from, char const* to, Rule rule) noexcept
{
  return rule == Rule::xml_1_0 ? before<Rule::xml_1_0>(start, begin, place, from, to)
                               : before<Rule::xml_1_1>(start, begin, place, from, to);
}
