#pragma once

#include <cstdint>

/// Methods of derivation, as bits of the sets {final}, {block}, {prohibited substitutions} (XML Schema Part 1, 3.3.1, 3.4.1,
/// 3.14.1).
enum axsDerivation : std::uint8_t
{
  axsDerivationExtension = 1,
  axsDerivationRestriction = 2,
  axsDerivationSubstitution = 4,
  axsDerivationList = 8,
  axsDerivationUnion = 16
};

using axsDerivationSet = std::uint8_t;
