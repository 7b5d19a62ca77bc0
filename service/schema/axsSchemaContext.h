#pragma once

#include "axsSchemaErrors.h"
#include "axsSchemaStore.h"
#include "axsSchemaSymbols.h"

#include <vector>

class axsContentModels;

/// What those who make components out of schema documents share.
struct axsSchemaContext
{
  /// A declaration with the element that it comes from.
  struct Declared
  {
    axsElementDecl* decl;
    axsSchemaUnit const* unit;
    axsSchemaElement const* element;
  };

  axsSchemaErrors& errors;
  axsSchemaSymbols& symbols;
  axsSchemaStore& store;

  /// The ur-type definition (Part 1, 3.4.7).
  axsComplexType* any_type = nullptr;

  /// Complex types, named or not, that are still to be made.
  std::vector<axsSchemaSymbol*> complex_types;

  /// All element declarations.
  std::vector<Declared> elements;

  /// Of contents; null until all components are there.
  axsContentModels* models = nullptr;
};
