#pragma once

#include "axsSchemaPlace.h"
#include "axsValueConstraint.h"

struct axsAttributeDecl;

/// An attribute use (Part 1, 3.5.1).
struct axsAttributeUse
{
  axsAttributeDecl const* decl = nullptr;
  bool is_required = false;
  /// The effective one: that of the declaration where the use has none (3.4.4, cvc-complex-type).
  axsValueConstraint constraint;
  axsSchemaPlace place;
};
