#pragma once

#include "axsSchemaName.h"
#include "axsSchemaPlace.h"
#include "axsTypeDefinition.h"
#include "axsValueConstraint.h"

#include <vector>

struct axsIdentityConstraint;

/// An element declaration (Part 1, 3.3.1).
struct axsElementDecl
{
  axsSchemaName name;
  axsTypeDefinition type;
  bool is_global = false;
  bool is_nillable = false;
  bool is_abstract = false;
  axsValueConstraint constraint;
  std::vector<axsIdentityConstraint const*> identity_constraints;

  /// The {substitution group affiliation}; null without one.
  axsElementDecl const* head = nullptr;

  /// {disallowed substitutions} ("block") and {substitution group exclusions} ("final").
  axsDerivationSet block = 0;
  axsDerivationSet final_set = 0;

  axsSchemaPlace place;
};
