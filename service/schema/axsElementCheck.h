#pragma once

#include "axsSchemaContext.h"

class axsGroupCheck;

/// The constraints on element declarations (Part 1, 3.3.6), when all components are there.
class axsElementCheck
{
public:
  axsElementCheck(axsSchemaContext& shared, axsGroupCheck& checked_groups);

  /// Whether no element is in its own substitution group (e-props-correct.6). What follows needs that.
  bool check_circles();

  /// e-props-correct; sets the bytes of the value constraint.
  void check(axsSchemaContext::Declared const& declared);

private:
  void check_constraint(axsSchemaContext::Declared const& declared);

  axsSchemaContext& context;
  axsGroupCheck& groups;
};
