#pragma once

#include "axsPlace.h"
#include "axsValueSet.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The values of one identity constraint in one element (Part 1, 3.11.4, identity-constraint table), and where they stand.
/// Memory in proportion to them.
class axsIdentityTable
{
public:
  static constexpr std::size_t none = axsValueSet::none;

  struct Entry
  {
    axsPlace place;
    bool is_own = true;       // of the element, and not of one within it
    bool is_conflict = false; // two elements within have it: then it is of neither
  };

  std::size_t size() const noexcept { return entries.size(); }
  Entry const& operator[](std::size_t number) const noexcept { return entries[number]; }

  /// The entry of the value as it was before; none if it is new.
  std::size_t add(std::string_view value, axsPlace place);

  /// Whether a reference finds the value.
  bool has(std::string_view value) const;

  std::string_view value(std::size_t number) const noexcept { return values[number]; }

  /// Takes over what a table of an element within has: the own values remain.
  void inherit(axsIdentityTable&& inner);

private:
  axsValueSet values;
  std::vector<Entry> entries;
};
