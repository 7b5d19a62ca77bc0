#pragma once

#include "axsSchemaPlace.h"
#include "axsValueConstraint.h"

struct axsAttributeDecl;

/// An attribute use (Part 1, 3.5.1).
struct axsAttributeUse
{
  axsAttributeDecl const* decl = nullptr;
  bool is_required = false;
  axsValueConstraint constraint;
  axsSchemaPlace place;
};
