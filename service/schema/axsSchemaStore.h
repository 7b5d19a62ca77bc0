#pragma once

#include "axsAttributeDecl.h"
#include "axsComplexType.h"
#include "axsElementDecl.h"
#include "axsIdentityConstraint.h"
#include "axsModelGroup.h"
#include "axsSchemaNameTable.h"
#include "axsSimpleTypes.h"
#include "axsWildcard.h"

#include <deque>
#include <string>

/// The components of a set, where they stay as long as it lives: deques keep what they hold in its place.
struct axsSchemaStore
{
  std::deque<axsElementDecl> elements;
  std::deque<axsAttributeDecl> attributes;
  std::deque<axsComplexType> complex_types;
  std::deque<axsModelGroup> groups;
  std::deque<axsWildcard> wildcards;
  std::deque<axsIdentityConstraint> identity_constraints;
  std::deque<axsSchemaName> names;
  axsSimpleTypes simple_types;

  /// A name that lives as long as the set.
  axsSchemaNameView kept(axsSchemaNameView name)
  {
    axsSchemaName const& made =
      names.emplace_back(axsSchemaName{std::string(name.name_space), std::string(name.local)});
    return {made.name_space, made.local};
  }
};
