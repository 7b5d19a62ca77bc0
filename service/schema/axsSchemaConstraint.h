#pragma once

#include "axsSchemaContext.h"
#include "axsValueConstraint.h"

class axsSimpleType;

/// The value constraints of declarations, from their attributes `default` and `fixed`.
namespace axsSchemaConstraint
{
/// As the element says it; a value that is not of the type is told of (a-props-correct, e-props-correct,
/// cos-valid-default).
axsValueConstraint read(axsSchemaContext& context, axsSchemaElement const& element, axsSimpleType const& type);

/// The same without a look at the value, for what is checked later.
axsValueConstraint read(axsSchemaElement const& element);

/// Checks the value and sets its bytes.
void check(axsSchemaContext& context, axsSchemaElement const& element, axsSimpleType const& type,
  axsValueConstraint& constraint);
}
