#pragma once

#include "axsAttributeSet.h"
#include "axsElementDecl.h"
#include "axsSchemaNameTable.h"
#include "axsSchemaUnit.h"
#include "axsTypeDefinition.h"

#include <cstdint>

struct axsAttributeDecl;
struct axsIdentityConstraint;
struct axsModelGroup;

/// A definition or declaration in a schema document, with the component that it stands for as far as that is made.
struct axsSchemaSymbol
{
  /// The symbol spaces (Part 1, 2.5), each with names of its own.
  enum class Space : std::uint8_t
  {
    type,
    element,
    attribute,
    group,
    attribute_group,
    notation,
    identity_constraint
  };
  static constexpr std::size_t spaces = 7;

  enum class State : std::uint8_t
  {
    untouched,
    active, // something it depends on is being made
    done
  };

  axsSchemaUnit const* unit = nullptr;
  axsSchemaElement const* element = nullptr;
  /// What the definition redefines, if it stands in xs:redefine.
  axsSchemaSymbol* redefined = nullptr;
  State state = State::untouched;

  // What it stands for, according to its space; of a type one of the first two.
  axsSimpleType const* simple_type = nullptr;
  axsComplexType* complex_type = nullptr;
  axsElementDecl* element_decl = nullptr;
  axsAttributeDecl* attribute_decl = nullptr;
  axsModelGroup* group = nullptr;
  axsIdentityConstraint* identity_constraint = nullptr;
  axsAttributeSet attributes; // of an attribute group

  axsSchemaNameView name() const noexcept { return {unit->target, element->value(axsSchemaField::name)}; }
  bool is_complex_type() const noexcept { return element->tag == axsSchemaTag::complex_type; }
};
