#pragma once

#include "axsSchemaName.h"
#include "axsSchemaPlace.h"
#include "axsValueConstraint.h"

class axsSimpleType;

/// An attribute declaration (Part 1, 3.2.1).
struct axsAttributeDecl
{
  axsSchemaName name;
  axsSimpleType const* type = nullptr;
  bool is_global = false;
  axsValueConstraint constraint;
  axsSchemaPlace place;
};
