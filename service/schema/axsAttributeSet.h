#pragma once

#include "axsAttributeUses.h"
#include "axsSchemaName.h"
#include "axsSchemaPlace.h"
#include "axsWildcard.h"

#include <optional>
#include <vector>

/// The attributes that a group or a type itself declares, those of the groups that it refers to included (Part 1, 3.4.2,
/// 3.6.2).
struct axsAttributeSet
{
  struct Prohibited
  {
    axsSchemaName name;
    axsSchemaPlace place;
  };

  axsAttributeUses uses;
  /// Those of them that are IDs, up to two.
  std::vector<axsAttributeDecl const*> ids;
  std::vector<Prohibited> prohibited;
  /// The complete wildcard.
  std::optional<axsWildcard> wildcard;
};
