#pragma once

#include "axsSchemaContext.h"

#include <vector>

/// Makes identity constraints out of schema documents (Part 1, 3.11.2).
class axsIdentityReader
{
public:
  explicit axsIdentityReader(axsSchemaContext& shared) : context(shared) {}

  /// What xs:unique, xs:key or xs:keyref says; null where its name is taken, which is told of.
  axsIdentityConstraint const* make(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// Gives key references their keys, once all are made.
  void resolve_references();

private:
  struct Reference
  {
    axsIdentityConstraint* constraint;
    axsSchemaUnit const* unit;
    axsSchemaElement const* element;
  };

  axsSchemaContext& context;
  std::vector<Reference> references;
};
