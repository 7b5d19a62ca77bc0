#pragma once

#include "axsContentNames.h"

#include <cstdint>

struct axsContentGroup;
struct axsElementDecl;
struct axsParticle;

/// A particle (Part 1, 3.9.1) made ready for running: exactly one of names, wildcard and group is not null.
struct axsContentItem
{
  /// Where the term can be passed without a child, min is 0 whatever the particle says: passing it counts.
  std::uint64_t min = 1;
  std::uint64_t max = 1;
  bool nullable = false;
  /// Whether a child may both go on in a counted particle within and begin anew here, as in (a{1,3}, b?){2,4}.
  bool is_weak = false;

  axsContentNames const* names = nullptr;
  axsContentWildcard const* wildcard = nullptr;
  axsContentGroup const* group = nullptr;
  axsParticle const* particle = nullptr;

  /// Whether it is of the element declaration with that name itself.
  bool is_named(std::uint32_t symbol) const noexcept { return names != nullptr && names->symbol == symbol; }

  /// Whether the element or wildcard takes the name; `symbol` may be axsSymbols::none.
  bool takes(std::uint32_t symbol, std::uint32_t space) const noexcept
  {
    return names != nullptr ? names->has(symbol) : wildcard != nullptr && wildcard->allows(space);
  }
};
