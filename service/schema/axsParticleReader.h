#pragma once

#include "axsElementReader.h"
#include "axsSchemaContext.h"

#include <optional>
#include <vector>

/// Makes particles and model groups out of schema documents (Part 1, 3.7.2 to 3.10.2), in any depth without recursion.
class axsParticleReader
{
public:
  axsParticleReader(axsSchemaContext& shared, axsElementReader& elements);

  /// What xs:group, xs:all, xs:choice or xs:sequence in a type says; nothing where it may not occur.
  std::optional<axsParticle> read(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// Fills the group of a model group definition.
  void fill(axsSchemaSymbol& symbol);

private:
  struct Open
  {
    axsModelGroup* group;
    axsSchemaElement const* next;
  };

  void fill(axsModelGroup& group, axsSchemaUnit const& unit, axsSchemaElement const& element);
  void add(std::vector<Open>& open, axsSchemaUnit const& unit, axsSchemaElement const& element);
  bool set_term(axsParticle& particle, axsSchemaUnit const& unit, axsSchemaElement const& element);
  static void begin(axsModelGroup& group, axsSchemaElement const& element);

  axsSchemaContext& context;
  axsElementReader& element_decls;
};
