#pragma once

#include "axsSchemaPlace.h"

#include <cstdint>
#include <limits>

struct axsElementDecl;
struct axsModelGroup;
struct axsWildcard;

/// A particle (Part 1, 3.9.1): how often its term may occur. Exactly one of the terms is not null.
struct axsParticle
{
  /// What {max occurs} is where there is no bound. Larger numbers in a schema document are taken for it too.
  static constexpr std::uint64_t unbounded = std::numeric_limits<std::uint64_t>::max();

  std::uint64_t min_occurs = 1;
  std::uint64_t max_occurs = 1;
  axsElementDecl const* element = nullptr;
  axsModelGroup const* group = nullptr;
  axsWildcard const* wildcard = nullptr;
  axsSchemaPlace place;
};
