#pragma once

#include "axsSchemaContext.h"

class axsComplexTypeCheck;
class axsGroupCheck;

/// The constraints on what stands in xs:redefine (Part 1, 4.2.2 src-redefine).
class axsRedefinitionCheck
{
public:
  axsRedefinitionCheck(axsSchemaContext& shared, axsGroupCheck& checked_groups, axsComplexTypeCheck& types);

  /// `symbol` redefines another one.
  void check(axsSchemaSymbol const& symbol);

private:
  void check_type(axsSchemaSymbol const& symbol);
  void check_group(axsSchemaSymbol const& symbol);
  void check_attribute_group(axsSchemaSymbol const& symbol);

  axsSchemaContext& context;
  axsGroupCheck& groups;
  axsComplexTypeCheck& complex_types;
};
