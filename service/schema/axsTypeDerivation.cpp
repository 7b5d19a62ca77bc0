#include "axsTypeDerivation.h"

#include "axsComplexType.h"
#include "axsSchemaText.h"
#include "axsSchemaVocabulary.h"
#include "axsSimpleType.h"

namespace
{
bool is_any_type(axsTypeDefinition const& type)
{
  return type.complex != nullptr && type.complex->base.complex == type.complex;
}

bool is_simple_derived(axsSimpleType const& derived, axsTypeDefinition const& base, axsDerivationSet excluded)
{
  if (base.simple != nullptr)
    return derived.is_derived_from(*base.simple, excluded);
  // All simple types are restrictions of the ur-type definition.
  return is_any_type(base) && (excluded & axsDerivationRestriction) == 0;
}
}

bool axsTypeDerivation::is_derived(
  axsTypeDefinition const& derived, axsTypeDefinition const& base, axsDerivationSet excluded)
{
  axsTypeDefinition at = derived;
  while (at.complex != nullptr)
  {
    if (at == base)
      return true;
    if (is_any_type(at) || (excluded & at.complex->derivation) != 0)
      return false;
    at = at.complex->base;
  }
  return at.simple != nullptr && is_simple_derived(*at.simple, base, excluded);
}

std::string axsTypeDerivation::words(axsTypeDefinition const& type)
{
  if (type.simple != nullptr)
  {
    std::string const shown = type.simple->shown_name();
    return shown.empty() ? "this type" : shown;
  }
  return type.complex->name.empty() ? "this type" : axsSchemaText::quoted(type.complex->name.local);
}
