#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>

/// The expanded name of a component, by views of texts that live elsewhere.
struct axsSchemaNameView
{
  std::string_view name_space;
  std::string_view local;

  friend bool operator==(axsSchemaNameView const& left, axsSchemaNameView const& right) noexcept
  {
    return left.local == right.local && left.name_space == right.name_space;
  }
};

/// A hash of names that nobody can foresee.
struct axsSchemaNameHash
{
  axsTextHash hash;

  std::size_t operator()(axsSchemaNameView const& name) const { return hash(name.local) * 31 + hash(name.name_space); }
};

template <class Value>
using axsSchemaNameTable = std::unordered_map<axsSchemaNameView, Value, axsSchemaNameHash>;
