#include "axsSchemaProduction.h"

#include <initializer_list>

namespace
{
using Tag = axsSchemaTag;
using Field = axsSchemaField;
using Role = axsSchemaRole;
using Slot = axsSchemaProduction::Slot;

constexpr std::uint32_t many = axsSchemaProduction::many;

constexpr std::uint64_t bit(Tag tag)
{
  return std::uint64_t{1} << static_cast<unsigned>(tag);
}

constexpr std::uint64_t bit(Field field)
{
  return std::uint64_t{1} << static_cast<unsigned>(field);
}

template <class... Values>
constexpr std::uint64_t set(Values... values)
{
  return (bit(values) | ... | std::uint64_t{0});
}

constexpr std::uint64_t facets =
  set(Tag::enumeration, Tag::fraction_digits, Tag::length, Tag::max_exclusive, Tag::max_inclusive, Tag::max_length,
    Tag::min_exclusive, Tag::min_inclusive, Tag::min_length, Tag::pattern, Tag::total_digits, Tag::white_space);
constexpr std::uint64_t redefinable = set(Tag::simple_type, Tag::complex_type, Tag::group, Tag::attribute_group);
constexpr std::uint64_t groups = set(Tag::all, Tag::choice, Tag::sequence);

constexpr Slot note{set(Tag::annotation), 0, 1};
constexpr Slot type_child{set(Tag::simple_type), 0, 1};
constexpr Slot content_group{groups | bit(Tag::group), 0, 1};
constexpr Slot attributes{set(Tag::attribute, Tag::attribute_group), 0, many};
constexpr Slot attribute_wildcard{set(Tag::any_attribute), 0, 1};

constexpr Slot schema_slots[] = {{set(Tag::include, Tag::import, Tag::redefine, Tag::annotation), 0, many},
  {redefinable | set(Tag::element, Tag::attribute, Tag::notation, Tag::annotation), 0, many}};
constexpr Slot redefine_slots[] = {{redefinable | bit(Tag::annotation), 0, many}};
constexpr Slot annotation_slots[] = {{set(Tag::appinfo, Tag::documentation), 0, many}};
constexpr Slot note_slots[] = {note};
constexpr Slot element_slots[] = {
  note, {set(Tag::simple_type, Tag::complex_type), 0, 1}, {set(Tag::unique, Tag::key, Tag::keyref), 0, many}};
constexpr Slot typed_slots[] = {note, type_child};
constexpr Slot complex_type_slots[] = {
  note, {groups | set(Tag::group, Tag::simple_content, Tag::complex_content), 0, 1}, attributes, attribute_wildcard};
constexpr Slot simple_type_slots[] = {note, {set(Tag::restriction, Tag::list, Tag::union_), 1, 1}};
constexpr Slot group_definition_slots[] = {note, {groups, 1, 1}};
constexpr Slot attribute_group_slots[] = {note, attributes, attribute_wildcard};
constexpr Slot all_slots[] = {note, {set(Tag::element), 0, many}};
constexpr Slot group_slots[] = {note, {set(Tag::element, Tag::group, Tag::choice, Tag::sequence, Tag::any), 0, many}};
constexpr Slot content_slots[] = {note, {set(Tag::restriction, Tag::extension), 1, 1}};
constexpr Slot restriction_slots[] = {note, type_child, {facets, 0, many}};
constexpr Slot simple_content_restriction_slots[] = {
  note, type_child, {facets, 0, many}, attributes, attribute_wildcard};
constexpr Slot complex_content_slots[] = {note, content_group, attributes, attribute_wildcard};
constexpr Slot union_slots[] = {note, {set(Tag::simple_type), 0, many}};
constexpr Slot identity_slots[] = {note, {set(Tag::selector), 1, 1}, {set(Tag::field), 1, many}};

constexpr std::uint64_t occurrence = set(Field::min_occurs, Field::max_occurs);
constexpr std::uint64_t element_fields =
  set(Field::id, Field::name, Field::type, Field::default_value, Field::fixed, Field::nillable, Field::block);

template <std::size_t count>
constexpr axsSchemaProduction production(std::uint64_t fields, std::uint64_t required, Slot const (&slots)[count])
{
  return {fields | bit(Field::id), required, slots, count};
}

constexpr axsSchemaProduction open_content(std::uint64_t fields)
{
  return {fields, 0, nullptr, 0};
}

// Of the elements that have a role of their own there.
Role role_at_top(Tag tag) noexcept
{
  switch (tag)
  {
  case Tag::element:
    return Role::global_element;
  case Tag::attribute:
    return Role::global_attribute;
  case Tag::complex_type:
    return Role::global_complex_type;
  case Tag::simple_type:
    return Role::global_simple_type;
  case Tag::group:
    return Role::group_definition;
  case Tag::attribute_group:
    return Role::attribute_group_definition;
  default:
    return Role::none;
  }
}

// Of the elements that have the same role wherever they stand.
Role role_anywhere(Tag tag) noexcept
{
  if ((bit(tag) & set(Tag::enumeration, Tag::pattern)) != 0)
    return Role::value_facet;
  if ((bit(tag) & facets) != 0)
    return Role::facet;
  switch (tag)
  {
  case Tag::include:
    return Role::include;
  case Tag::import:
    return Role::import;
  case Tag::redefine:
    return Role::redefine;
  case Tag::annotation:
    return Role::annotation;
  case Tag::appinfo:
    return Role::appinfo;
  case Tag::documentation:
    return Role::documentation;
  case Tag::any:
    return Role::any;
  case Tag::any_attribute:
    return Role::any_attribute;
  case Tag::simple_content:
    return Role::simple_content;
  case Tag::complex_content:
    return Role::complex_content;
  case Tag::list:
    return Role::list;
  case Tag::union_:
    return Role::union_;
  case Tag::unique:
  case Tag::key:
    return Role::identity_constraint;
  case Tag::keyref:
    return Role::keyref;
  case Tag::selector:
  case Tag::field:
    return Role::path;
  case Tag::notation:
    return Role::notation;
  default:
    return Role::none;
  }
}
}

axsSchemaProduction axsSchemaProduction::of(axsSchemaRole role) noexcept
{
  switch (role)
  {
  case Role::schema:
    return production(set(Field::target_namespace, Field::version, Field::final_default, Field::block_default,
                        Field::attribute_form_default, Field::element_form_default),
      0, schema_slots);
  case Role::include:
    return production(set(Field::schema_location), set(Field::schema_location), note_slots);
  case Role::import:
    return production(set(Field::name_space, Field::schema_location), 0, note_slots);
  case Role::redefine:
    return production(set(Field::schema_location), set(Field::schema_location), redefine_slots);
  case Role::annotation:
    return production(0, 0, annotation_slots);
  case Role::appinfo:
  case Role::documentation:
    return open_content(set(Field::source));
  case Role::global_element:
    return production(element_fields | set(Field::abstract, Field::final_value, Field::substitution_group),
      set(Field::name), element_slots);
  case Role::local_element:
  case Role::all_element:
    return production(element_fields | occurrence | set(Field::ref, Field::form), 0, element_slots);
  case Role::global_attribute:
    // It has no "use", yet many say it; we let pass what it could say on a local one.
    return production(
      set(Field::name, Field::type, Field::default_value, Field::fixed, Field::use), set(Field::name), typed_slots);
  case Role::local_attribute:
    return production(
      set(Field::name, Field::ref, Field::type, Field::default_value, Field::fixed, Field::use, Field::form), 0,
      typed_slots);
  case Role::global_complex_type:
    return production(set(Field::name, Field::mixed, Field::abstract, Field::final_value, Field::block),
      set(Field::name), complex_type_slots);
  case Role::local_complex_type:
    return production(set(Field::mixed), 0, complex_type_slots);
  case Role::global_simple_type:
    return production(set(Field::name, Field::final_value), set(Field::name), simple_type_slots);
  case Role::local_simple_type:
    return production(0, 0, simple_type_slots);
  case Role::group_definition:
    return production(set(Field::name), set(Field::name), group_definition_slots);
  case Role::group_reference:
    return production(set(Field::ref) | occurrence, set(Field::ref), note_slots);
  case Role::attribute_group_definition:
    return production(set(Field::name), set(Field::name), attribute_group_slots);
  case Role::attribute_group_reference:
    return production(set(Field::ref), set(Field::ref), note_slots);
  case Role::definition_all:
    return production(0, 0, all_slots);
  case Role::definition_group:
    return production(0, 0, group_slots);
  case Role::all:
    return production(occurrence, 0, all_slots);
  case Role::group:
    return production(occurrence, 0, group_slots);
  case Role::any:
    return production(occurrence | set(Field::name_space, Field::process_contents), 0, note_slots);
  case Role::any_attribute:
    return production(set(Field::name_space, Field::process_contents), 0, note_slots);
  case Role::simple_content:
    return production(0, 0, content_slots);
  case Role::complex_content:
    return production(set(Field::mixed), 0, content_slots);
  case Role::simple_restriction:
    return production(set(Field::base), 0, restriction_slots);
  case Role::simple_content_restriction:
    return production(set(Field::base), set(Field::base), simple_content_restriction_slots);
  case Role::complex_content_restriction:
  case Role::complex_content_extension:
    return production(set(Field::base), set(Field::base), complex_content_slots);
  case Role::simple_content_extension:
    return production(set(Field::base), set(Field::base), attribute_group_slots);
  case Role::list:
    return production(set(Field::item_type), 0, typed_slots);
  case Role::union_:
    return production(set(Field::member_types), 0, union_slots);
  case Role::identity_constraint:
    return production(set(Field::name), set(Field::name), identity_slots);
  case Role::keyref:
    return production(set(Field::name, Field::refer), set(Field::name, Field::refer), identity_slots);
  case Role::path:
    return production(set(Field::xpath), set(Field::xpath), note_slots);
  case Role::notation:
    return production(set(Field::name, Field::public_id, Field::system_id), set(Field::name), note_slots);
  case Role::facet:
    return production(set(Field::value, Field::fixed), set(Field::value), note_slots);
  case Role::value_facet:
    return production(set(Field::value), set(Field::value), note_slots);
  case Role::none:
    break;
  }
  return open_content(0);
}

axsSchemaRole axsSchemaProduction::role_of(axsSchemaRole parent, axsSchemaTag child) noexcept
{
  bool const is_top = parent == Role::schema || parent == Role::redefine;
  bool const is_simple_content = parent == Role::simple_content;
  bool const is_in_definition = parent == Role::group_definition;
  if (Role const at_top = is_top ? role_at_top(child) : Role::none; at_top != Role::none)
    return at_top;
  switch (child)
  {
  case Tag::element:
    if (parent == Role::all || parent == Role::definition_all)
      return Role::all_element;
    return Role::local_element;
  case Tag::attribute:
    return Role::local_attribute;
  case Tag::complex_type:
    return Role::local_complex_type;
  case Tag::simple_type:
    return Role::local_simple_type;
  case Tag::group:
    return Role::group_reference;
  case Tag::attribute_group:
    return Role::attribute_group_reference;
  case Tag::all:
    return is_in_definition ? Role::definition_all : Role::all;
  case Tag::choice:
  case Tag::sequence:
    return is_in_definition ? Role::definition_group : Role::group;
  case Tag::restriction:
    if (is_simple_content)
      return Role::simple_content_restriction;
    return parent == Role::complex_content ? Role::complex_content_restriction : Role::simple_restriction;
  case Tag::extension:
    return is_simple_content ? Role::simple_content_extension : Role::complex_content_extension;
  default:
    return role_anywhere(child);
  }
}
