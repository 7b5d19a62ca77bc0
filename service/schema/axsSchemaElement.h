#pragma once

#include "axsSchemaPlace.h"
#include "axsSchemaProduction.h"
#include "axsSchemaScope.h"
#include "axsSchemaVocabulary.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// An attribute of an element of a schema document. Attributes of other namespaces than the schema language's are not kept,
/// but for xml:lang: they may stand anywhere and say nothing to us.
struct axsSchemaAttributeText
{
  /// White space collapsed, but for `value`, `default` and `fixed`. Of `other` the name instead.
  std::string_view value;
  axsSchemaPlace place;
  axsSchemaField field = axsSchemaField::other;
};

/// An element of a schema document. Lives in the document, with what it refers to. What stands in `appinfo` and
/// `documentation` is not kept.
struct axsSchemaElement
{
  axsSchemaTag tag = axsSchemaTag::other;
  axsSchemaRole role = axsSchemaRole::none;
  /// Whether there is text in it that is not white space.
  bool has_text = false;
  axsSchemaPlace place;
  axsSchemaElement const* parent = nullptr;
  axsSchemaElement const* first_child = nullptr;
  axsSchemaElement const* next = nullptr;
  axsSchemaScope const* scope = nullptr;
  axsSchemaAttributeText const* attributes = nullptr;
  std::uint32_t attribute_count = 0;

  /// As documents have it; empty of `other`.
  std::string_view name() const noexcept { return axsSchemaVocabulary::name(tag); }

  axsSchemaAttributeText const* find(axsSchemaField field) const noexcept
  {
    for (std::size_t i = 0; i < attribute_count; ++i)
      if (attributes[i].field == field)
        return &attributes[i];
    return nullptr;
  }

  bool has(axsSchemaField field) const noexcept { return find(field) != nullptr; }

  /// Empty where there is no such attribute.
  std::string_view value(axsSchemaField field) const noexcept
  {
    axsSchemaAttributeText const* const found = find(field);
    return found == nullptr ? std::string_view() : found->value;
  }

  /// That of the attribute, where it is there, otherwise of the element.
  axsSchemaPlace place_of(axsSchemaField field) const noexcept
  {
    axsSchemaAttributeText const* const found = find(field);
    return found == nullptr ? place : found->place;
  }

  /// A boolean (Part 2, 3.2.2); `otherwise` where there is no such attribute.
  bool is_true(axsSchemaField field, bool otherwise) const noexcept
  {
    axsSchemaAttributeText const* const found = find(field);
    return found == nullptr ? otherwise : found->value == "true" || found->value == "1";
  }

  /// The first child with that tag; null without one.
  axsSchemaElement const* child(axsSchemaTag wanted) const noexcept
  {
    for (axsSchemaElement const* at = first_child; at != nullptr; at = at->next)
      if (at->tag == wanted)
        return at;
    return nullptr;
  }
};
