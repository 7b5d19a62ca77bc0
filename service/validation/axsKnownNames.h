#pragma once

#include "axsKnownName.h"
#include "axsTextHash.h"

#include <deque>
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
  axsKnownName const& find(axsName const& name, std::string_view name_space);

private:
  axsKnownName const& add(axsName const& name, std::string_view name_space);

  axsSchemaComponents const& schema;
  std::deque<axsKnownName> all;
  std::vector<axsKnownName const*> latest; // by the number of the name
  using BySpace = std::unordered_map<std::string_view, axsKnownName const*, axsTextHash>;
  std::unordered_map<axsName const*, BySpace> by_name;
};
