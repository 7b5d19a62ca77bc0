#pragma once

#include "axsTypeDefinition.h"

/// How types are derived from each other.
namespace axsTypeDerivation
{
/// Whether `derived` is validly derived from `base`, or is it, by none of the `excluded` methods (Part 1, 3.4.6
/// cos-ct-derived-ok, 3.14.6 cos-st-derived-ok). Costs as much as there are types between them.
bool is_derived(axsTypeDefinition const& derived, axsTypeDefinition const& base, axsDerivationSet excluded = 0);

/// The type's name in quotes, for messages: "'t'", or "this type" of one without a name.
std::string words(axsTypeDefinition const& type);
}
