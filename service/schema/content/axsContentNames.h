#pragma once

#include "axsSymbolSet.h"
#include "axsSymbols.h"

#include <algorithm>
#include <cstdint>
#include <vector>

struct axsElementDecl;
struct axsWildcard;

/// The names that an element particle takes: that of its declaration and those of all that can stand in its place
/// (Part 1, 3.3.6 cos-equiv-class), as spans of numbers (axsSymbols).
struct axsContentNames
{
  struct Span
  {
    std::uint32_t first;
    std::uint32_t last;
  };

  axsElementDecl const* decl = nullptr;
  std::uint32_t symbol = 0; // of the declaration itself
  std::vector<Span> spans;  // sorted, apart from each other
  std::vector<std::uint32_t> spaces;
  // The ends of all spans together.
  std::uint32_t lowest = 0;
  std::uint32_t highest = 0;

  bool is_single() const noexcept { return spans.size() == 1 && spans.front().first == spans.front().last; }

  bool has(std::uint32_t wanted) const noexcept
  {
    if (wanted < lowest || wanted > highest)
      return false;
    if (wanted == symbol || spans.size() == 1)
      return true;
    auto const after = std::upper_bound(
      spans.begin(), spans.end(), wanted, [](std::uint32_t number, Span const& span) { return number < span.first; });
    return after != spans.begin() && (after - 1)->last >= wanted;
  }
};

/// The namespaces that a wildcard takes (Part 1, 3.10.1), by their numbers (axsSymbols).
struct axsContentWildcard
{
  axsWildcard const* wildcard = nullptr;
  bool is_broad = false;             // takes all but `spaces`
  std::vector<std::uint32_t> spaces; // sorted
  axsSymbolSet reach;                // those that it takes, unless it is broad; shared by all contents that have it

  /// `space` is axsSymbols::none for a namespace that the schema does not know.
  bool allows(std::uint32_t space) const noexcept
  {
    return std::binary_search(spaces.begin(), spaces.end(), space) != is_broad;
  }
};
