#pragma once

#include "axsDerivation.h"
#include "axsSchemaName.h"
#include "axsSchemaPlace.h"

class axsSimpleType;
struct axsComplexType;

/// A type definition: a simple or a complex one, never both (Part 1, 2.2.1). Owned by the set of schema components.
struct axsTypeDefinition
{
  axsSimpleType const* simple = nullptr;
  axsComplexType const* complex = nullptr;

  bool is_simple() const noexcept { return simple != nullptr; }
  explicit operator bool() const noexcept { return simple != nullptr || complex != nullptr; }

  friend bool operator==(axsTypeDefinition const& left, axsTypeDefinition const& right) noexcept
  {
    return left.simple == right.simple && left.complex == right.complex;
  }
};
