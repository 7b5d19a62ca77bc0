#pragma once

#include "axsAttributeType.h"

#include "axsTextHash.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// A document type as its declarations make it (XML 1.0, 2.8): those of the internal subset and, where external entities
/// are read, of the external one. Plain data; does not change once the parser has told of it, so that threads may share it.
class axsDtd
{
public:
  struct ExternalId
  {
    std::string public_id;
    std::string system_id;

    /// Without it, there is a public identifier only, as notations may have it, or none.
    bool has_system_id = false;
    bool has_public_id = false;
  };

  enum class Default : unsigned char
  {
    implied,
    required,
    fixed,
    value
  };

  struct Attribute
  {
    std::string name;
    axsAttributeType type = axsAttributeType::cdata;
    Default kind = Default::implied;

    /// Of one that is fixed or has a default, normalised.
    std::string value;

    /// Of an enumeration the tokens, of a notation the names.
    std::vector<std::string> tokens;
  };

  struct Element
  {
    std::string name;

    /// The content model as it is written, parameter entities expanded; empty where the element is not declared.
    std::string content;

    /// In the order of their declarations; of several with one name the first.
    std::vector<Attribute> attributes;
  };

  struct Entity
  {
    /// What stands for an internal one (4.5); of others empty.
    std::string replacement;
    ExternalId external;

    /// Of an unparsed entity (4.2.2).
    std::string notation;

    bool is_internal = true;
  };

  struct Notation
  {
    ExternalId external;
  };

  template <class Value>
  using Map = std::unordered_map<std::string, Value, axsTextHash>;

  /// The declared name of the root element.
  std::string name;

  ExternalId external;

  /// The declaration as it is written, from "<!DOCTYPE" to ">", in UTF-8.
  std::string text;

  /// In the order in which they are named first.
  std::deque<Element> elements;

  /// General entities, the predefined ones not among them; of several with one name the first.
  Map<Entity> entities;
  Map<Notation> notations;

  /// What is declared of an element, null for nothing.
  Element const* find_element(std::string_view element) const
  {
    auto const found = by_name.find(element);
    return found == by_name.end() ? nullptr : found->second;
  }

  /// The same, for who declares; made where there is none.
  Element& element(std::string_view wanted)
  {
    if (auto const found = by_name.find(wanted); found != by_name.end())
      return *found->second;
    Element& made = elements.emplace_back();
    made.name = wanted;
    by_name.emplace(made.name, &made);
    return made;
  }

private:
  std::unordered_map<std::string_view, Element*, axsTextHash> by_name;
};
