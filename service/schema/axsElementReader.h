#pragma once

#include "axsIdentityReader.h"
#include "axsSchemaContext.h"
#include "axsSimpleTypeReader.h"

/// Makes element declarations out of schema documents (Part 1, 3.3.2).
class axsElementReader
{
public:
  axsElementReader(axsSchemaContext& shared, axsSimpleTypeReader& types, axsIdentityReader& identities);

  /// Fills the declaration of a global element.
  void fill(axsSchemaSymbol& symbol);

  /// The declaration of an element in a model group.
  axsElementDecl const& local(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// Gives the elements that name no type that of the head of their substitution group, once all are filled.
  void take_types_of_heads();

private:
  void fill(axsElementDecl& decl, axsSchemaUnit const& unit, axsSchemaElement const& element);
  axsTypeDefinition type_of(axsSchemaUnit const& unit, axsSchemaElement const& element);
  axsTypeDefinition named_type(axsSchemaUnit const& unit, axsSchemaElement const& element);

  axsSchemaContext& context;
  axsSimpleTypeReader& simple_types;
  axsIdentityReader& identity_constraints;
};
