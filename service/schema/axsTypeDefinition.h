#pragma once

#include "axsSchemaName.h"
#include "axsSchemaPlace.h"

#include <cstdint>

class axsSimpleType;
struct axsComplexType;

/// Methods of derivation, as bits of the sets {final}, {block}, {prohibited substitutions} (Part 1, 3.3.1, 3.4.1, 3.14.1).
enum axsDerivation : std::uint8_t
{
  axsDerivationExtension = 1,
  axsDerivationRestriction = 2,
  axsDerivationSubstitution = 4,
  axsDerivationList = 8,
  axsDerivationUnion = 16
};

using axsDerivationSet = std::uint8_t;

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
