#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <forward_list>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

class axsElement;
class axsName;
class axsTree;

/// What is in scope at the elements of one document: the namespaces that prefixes are bound to, and the values of inherited
/// attributes such as xml:lang.
///
/// Caches what it found, so that asking for every element of a deep tree takes linear time. Belongs to one evaluation;
/// valid as long as the document does not change.
class axsXPathScopes
{
public:
  static constexpr std::string_view xml_uri = "http://www.w3.org/XML/1998/namespace";

  explicit axsXPathScopes(axsTree& tree) noexcept;

  /// The namespace that `prefix` is bound to at `element`; with an empty prefix the default namespace. Empty where there
  /// is none.
  std::string_view uri(axsElement const& element, std::string_view prefix);

  /// The namespace of an element, and of an attribute; the default namespace is for elements only.
  std::string_view uri_of_element(axsElement const& element);
  std::string_view uri_of_attribute(axsElement const& owner, axsName const& name);

  /// Whether an element without a prefix is in no namespace.
  bool is_without_namespace(axsElement const& element)
  {
    return default_declaration == nullptr || nearest_value(element, *default_declaration).empty();
  }

  /// The value of the attribute `name` of the element or, if it has none, of its nearest ancestor that has one; a null view
  /// if there is none.
  std::string_view nearest_value(axsElement const& element, axsName const& name);

  /// Whether an attribute of that name declares a namespace.
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
  // By prefixes as the names have them or, where no name declares them, as they are kept here.
  std::unordered_map<std::string_view, axsName const*, axsTextHash> declarations;
  std::forward_list<std::string> undeclared;
  std::unordered_map<Place, std::string_view, PlaceHash> far_results;
};
