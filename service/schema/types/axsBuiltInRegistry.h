#pragma once

#include "axsSimpleType.h"

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Makes the built-in types and owns them.
class axsBuiltInRegistry
{
public:
  axsBuiltInRegistry();

  axsSimpleType const* find(std::string_view name) const noexcept;

private:
  axsSimpleType& add(char const* name, axsSimpleType const* base);
  void add_primitives();
  void add_text_types();
  void add_lists();
  void add_numbers();
  axsSimpleType& restrict(char const* name, char const* base, std::vector<axsFacet> const& facets = {});

  std::vector<std::unique_ptr<axsSimpleType>> made;
  std::unordered_map<std::string_view, axsSimpleType const*> by_name;
};
