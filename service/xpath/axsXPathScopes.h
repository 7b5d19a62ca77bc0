#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

class axsElement;
class axsName;
class axsTree;

/// What elements of one document have from those above them: the namespaces that prefixes stand for, and the values of
/// attributes that hold for all below.
///
/// Remembers what it found, so it is good for as long as the document does not change; belongs to one evaluation.
class axsXPathScopes
{
public:
  static constexpr std::string_view xml_uri = "http://www.w3.org/XML/1998/namespace";

  explicit axsXPathScopes(axsTree& tree) noexcept;

  /// The namespace that `prefix` stands for at `element`, that of elements without a prefix if it is empty. Empty where
  /// there is none: an undeclared prefix, or no default namespace.
  std::string_view uri(axsElement const& element, std::string_view prefix);

  /// The same for the prefix of a name, of an element or attribute alike; only an element without a prefix is in the
  /// default namespace.
  std::string_view uri_of_element(axsElement const& element);
  std::string_view uri_of_attribute(axsElement const& owner, axsName const& name);

  /// Whether an element without a prefix is in no namespace.
  bool is_without_namespace(axsElement const& element)
  {
    return default_declaration == nullptr || nearest_value(element, *default_declaration).empty();
  }

  /// The value of the nearest attribute `name`, at the element or above it; a view of nothing (null) if there is none.
  std::string_view nearest_value(axsElement const& element, axsName const& name);

  /// Whether an attribute of that name declares a namespace, which makes it none of the data model.
  static bool is_declaration(axsName const& name) noexcept;

private:
  struct Place
  {
    axsElement const* element;
    axsName const* name;

    bool operator==(Place const& other) const noexcept { return element == other.element && name == other.name; }
  };

  struct PlaceHash
  {
    std::size_t operator()(Place const& place) const noexcept
    {
      std::hash<void const*> const hash;
      return hash(place.element) * 31 + hash(place.name);
    }
  };

  /// The name of the attribute that declares `prefix`, null if the document never had one.
  axsName const* declaration_of(std::string_view prefix);

  axsTree& tree;
  axsName const* default_declaration;
  std::unordered_map<std::string_view, axsName const*, axsTextHash> declarations;
  std::unordered_map<Place, std::string_view, PlaceHash> far_results;
};
