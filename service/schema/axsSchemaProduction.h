#pragma once

#include "axsSchemaVocabulary.h"

#include <cstddef>
#include <cstdint>

/// The elements of schema documents by where they stand, as their grammar tells them apart (Part 1, appendix A).
enum class axsSchemaRole : std::uint8_t
{
  schema,
  include,
  import,
  redefine,
  annotation,
  appinfo,
  documentation,
  global_element,
  local_element,
  all_element, // in an all group
  global_attribute,
  local_attribute,
  global_complex_type,
  local_complex_type,
  global_simple_type,
  local_simple_type,
  group_definition,
  group_reference,
  attribute_group_definition,
  attribute_group_reference,
  definition_all, // the group of a model group definition
  definition_group,
  all,
  group, // sequence and choice
  any,
  any_attribute,
  simple_content,
  complex_content,
  simple_restriction, // of a simple type
  simple_content_restriction,
  complex_content_restriction,
  simple_content_extension,
  complex_content_extension,
  list,
  union_,
  identity_constraint, // unique and key
  keyref,
  path, // selector and field
  notation,
  facet,
  value_facet, // enumeration and pattern, which cannot be fixed
  none         // may not stand where it stands
};

/// What may stand on and in an element that has a role.
struct axsSchemaProduction
{
  /// Children of any of `tags`, `min` to `max` of them.
  struct Slot
  {
    std::uint64_t tags;
    std::uint32_t min;
    std::uint32_t max;
  };

  static constexpr std::uint32_t many = static_cast<std::uint32_t>(-1);

  std::uint64_t fields;
  std::uint64_t required;
  /// In this order.
  Slot const* slots;
  std::size_t slot_count;

  static axsSchemaProduction of(axsSchemaRole role) noexcept;

  /// The role of a child with that tag in an element that has the role `parent`; `none` if it may not stand there at all.
  static axsSchemaRole role_of(axsSchemaRole parent, axsSchemaTag child) noexcept;
};
