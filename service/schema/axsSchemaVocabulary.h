#pragma once

#include <cstdint>
#include <string_view>

/// The elements of schema documents, by their local names (Part 1, appendix A).
enum class axsSchemaTag : std::uint8_t
{
  all,
  annotation,
  any,
  any_attribute,
  appinfo,
  attribute,
  attribute_group,
  choice,
  complex_content,
  complex_type,
  documentation,
  element,
  enumeration,
  extension,
  field,
  fraction_digits,
  group,
  import,
  include,
  key,
  keyref,
  length,
  list,
  max_exclusive,
  max_inclusive,
  max_length,
  min_exclusive,
  min_inclusive,
  min_length,
  notation,
  pattern,
  redefine,
  restriction,
  schema,
  selector,
  sequence,
  simple_content,
  simple_type,
  total_digits,
  union_,
  unique,
  white_space,
  other // of another namespace, or none of these
};

/// The attributes of schema documents, which are in no namespace.
enum class axsSchemaField : std::uint8_t
{
  abstract,
  attribute_form_default,
  base,
  block,
  block_default,
  default_value,
  element_form_default,
  final_value,
  final_default,
  fixed,
  form,
  id,
  item_type,
  max_occurs,
  member_types,
  min_occurs,
  mixed,
  name,
  name_space,
  nillable,
  process_contents,
  public_id,
  ref,
  refer,
  schema_location,
  source,
  substitution_group,
  system_id,
  target_namespace,
  type,
  use,
  value,
  version,
  xml_lang,
  xpath,
  other // none of these
};

/// Names of the schema language.
namespace axsSchemaVocabulary
{
constexpr std::string_view schema_namespace = "http://www.w3.org/2001/XMLSchema";
constexpr std::string_view instance_namespace = "http://www.w3.org/2001/XMLSchema-instance";
constexpr std::string_view xml_namespace = "http://www.w3.org/XML/1998/namespace";

/// The element of that local name; `other` for what is none.
axsSchemaTag tag(std::string_view local) noexcept;

/// The attribute of that name; `other` for what is none.
axsSchemaField field(std::string_view local) noexcept;

/// The name in documents; empty for `other`.
std::string_view name(axsSchemaTag tag) noexcept;
std::string_view name(axsSchemaField field) noexcept;
}
