#pragma once

#include "axsSchemaName.h"
#include "axsSchemaPlace.h"
#include "axsValueConstraint.h"

#include <memory>

class axsSimpleType;

/// An attribute declaration (Part 1, 3.2.1).
struct axsAttributeDecl
{
  axsSchemaName name;
  std::shared_ptr<axsSimpleType const> type;
  bool is_global = false;
  axsValueConstraint constraint;
  axsSchemaPlace place;
};
