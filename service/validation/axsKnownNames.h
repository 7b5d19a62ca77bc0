#pragma once

#include "axsKnownName.h"
#include "axsName.h"
#include "axsTextHash.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

class axsSchemaComponents;

/// The names of the elements of one document, each looked up in the schema once.
class axsKnownNames
{
public:
  explicit axsKnownNames(axsSchemaComponents const& given) : schema(given) {}

  /// The name, which lives as long as this object.
  axsKnownName const& find(axsName const& name, std::string_view name_space)
  {
    std::size_t const number = name.number();
    bool const is_latest = number < latest.size() && latest[number] != nullptr && latest[number]->name == &name &&
                           latest[number]->name_space == name_space;
    return is_latest ? *latest[number] : look_up(name, name_space);
  }

private:
  struct Key
  {
    axsName const* name;
    std::string_view name_space;

    friend bool operator==(Key const& left, Key const& right) noexcept
    {
      return left.name == right.name && left.name_space == right.name_space;
    }
  };

  struct KeyHash
  {
    std::size_t operator()(Key const& key) const
    {
      return hash_of(key.name_space) ^ std::hash<axsName const*>()(key.name);
    }

    axsTextHash hash_of;
  };

  axsKnownName const& look_up(axsName const& name, std::string_view name_space);
  axsKnownName const& add(axsName const& name, std::string_view name_space);

  axsSchemaComponents const& schema;
  std::deque<axsKnownName> all;
  std::vector<axsKnownName const*> latest; // by the number of the name
  std::unordered_map<Key, axsKnownName const*, KeyHash> by_key;
};
