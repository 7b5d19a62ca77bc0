#pragma once

#include "axsAttributeUses.h"
#include "axsParticle.h"
#include "axsSchemaName.h"
#include "axsSchemaPlace.h"
#include "axsTypeDefinition.h"
#include "axsWildcard.h"

#include <cstdint>
#include <memory>
#include <optional>

class axsContentAutomaton;

/// A complex type definition (Part 1, 3.4.1).
struct axsComplexType
{
  enum class Content
  {
    empty,
    simple,
    element_only,
    mixed
  };

  axsSchemaName name;
  /// Among the complex types of the schema, counted from 0.
  std::uint32_t number = 0;
  axsTypeDefinition base;
  axsDerivation derivation = axsDerivationRestriction;
  bool is_abstract = false;
  axsDerivationSet final_set = 0;
  axsDerivationSet block = 0;

  axsAttributeUses attributes;
  std::optional<axsWildcard> attribute_wildcard;

  Content content = Content::empty;
  /// Where the content is simple, its type.
  axsSimpleType const* simple_content = nullptr;
  /// Where it is element-only or mixed, its particle; a mixed content may be without one.
  std::optional<axsParticle> particle;
  /// The particle compiled; made with the set.
  std::shared_ptr<axsContentAutomaton const> automaton;

  axsSchemaPlace place;

  /// Whether its content may hold elements.
  bool has_element_content() const noexcept { return content == Content::element_only || content == Content::mixed; }
};
