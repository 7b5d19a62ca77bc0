#include "axsSubstitution.h"

#include "axsComplexType.h"
#include "axsElementDecl.h"
#include "axsSimpleType.h"

namespace
{
axsDerivationSet blocked_by(axsTypeDefinition const& type) noexcept
{
  return type.complex == nullptr ? axsDerivationSet{0} : type.complex->block;
}

// The type's base, with the method by which it is derived in `method`.
axsTypeDefinition base_of(axsTypeDefinition const& type, axsDerivationSet& method) noexcept
{
  axsTypeDefinition base;
  method = axsDerivationRestriction;
  if (type.complex != nullptr)
  {
    method = type.complex->derivation;
    base = type.complex->base;
  }
  else if (type.simple != nullptr)
    base.simple = type.simple->base();
  return base == type ? axsTypeDefinition() : base;
}
}

bool axsSubstitution::is_allowed(axsElementDecl const& member, axsElementDecl const& head) noexcept
{
  if ((head.block & axsDerivationSubstitution) != 0)
    return false;
  axsDerivationSet blocked = head.block | blocked_by(head.type);
  axsDerivationSet methods = 0;
  axsTypeDefinition at = member.type;
  while (at && !(at == head.type))
  {
    axsDerivationSet method = 0;
    at = base_of(at, method);
    methods |= method;
    if (!(at == head.type))
      blocked |= blocked_by(at);
  }
  return (methods & blocked) == 0;
}
