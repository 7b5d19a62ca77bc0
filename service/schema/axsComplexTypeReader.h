#pragma once

#include "axsAttributeReader.h"
#include "axsParticleReader.h"
#include "axsSchemaContext.h"
#include "axsSimpleTypeReader.h"

#include <vector>

/// Makes complex types out of schema documents (Part 1, 3.4.2), those that they are derived from first, in any depth
/// without recursion.
class axsComplexTypeReader
{
public:
  axsComplexTypeReader(
    axsSchemaContext& shared, axsSimpleTypeReader& types, axsAttributeReader& attributes, axsParticleReader& particles);

  /// Makes the type of that symbol, unless it is made.
  void make(axsSchemaSymbol& symbol);

private:
  struct Derivation;

  Derivation derivation_of(axsSchemaSymbol& symbol);
  void find_base(Derivation& derivation);
  void complete(Derivation& derivation);
  void set_simple_content(Derivation const& derivation);
  axsSimpleType const& restricted_content(Derivation const& derivation);
  void set_complex_content(Derivation const& derivation);
  void extend_content(Derivation const& derivation, std::optional<axsParticle> own, bool is_mixed);
  void set_attributes(Derivation const& derivation);
  void inherit_attributes(Derivation const& derivation, axsAttributeSet& own);
  void unite_wildcards(Derivation const& derivation);

  axsSchemaContext& context;
  axsSimpleTypeReader& simple_types;
  axsAttributeReader& attribute_reader;
  axsParticleReader& particle_reader;
};
