#pragma once

#include <string>
#include <string_view>
#include <tuple>

/// The expanded name of a schema component: its {target namespace} and its {name} (XML Schema Part 1, 2.2.1), in UTF-8.
/// The namespace of names that have none is empty; the name of anonymous types is.
struct axsSchemaName
{
  std::string name_space;
  std::string local;

  bool empty() const noexcept { return local.empty(); }

  friend bool operator==(axsSchemaName const& left, axsSchemaName const& right) noexcept
  {
    return left.local == right.local && left.name_space == right.name_space;
  }
  friend bool operator!=(axsSchemaName const& left, axsSchemaName const& right) noexcept { return !(left == right); }
  friend bool operator<(axsSchemaName const& left, axsSchemaName const& right) noexcept
  {
    return std::tie(left.local, left.name_space) < std::tie(right.local, right.name_space);
  }
};
