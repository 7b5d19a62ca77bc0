#pragma once

#include "axsPlace.h"
#include "axsValueSet.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

/// The values of an identity constraint whose selector leads to any depth, in all elements that have the constraint and are
/// open. Such elements stand within each other, and what ".//" selects in one of them it selects in all those around it:
/// its value is kept once. What other alternatives select is of one element. Memory in proportion to the values, a
/// logarithm of their number for each.
class axsIdentityValues
{
public:
  /// How many values of any depth there were before an element that begins now.
  std::size_t deep_count() const noexcept { return deep; }

  /// A value that ".//" selects in the element at `level` and in those around it; levels count the open elements from 1.
  /// Where it stands already in one of these, null if it does in none. Pointers hold until the next value.
  axsPlace const* add_deep(std::string_view value, axsPlace place, std::size_t level);

  /// A value of the element at `level` alone, before which there were `first_deep`. Where it stands already in that.
  axsPlace const* add_near(std::string_view value, axsPlace place, std::size_t level, std::size_t first_deep);

  /// The element at `level`, the innermost, ends.
  void end(std::size_t level);

private:
  struct Entry
  {
    axsPlace place;
    std::size_t order = 0;   // among those of any depth
    std::uint32_t level = 0; // of the innermost element in which ".//" selected it; 0 for none
  };

  // The number of a value and the level of the element that has it.
  using NumberAndLevel = std::pair<std::size_t, std::size_t>;

  std::size_t number_of(std::string_view value);

  axsValueSet values;
  std::vector<Entry> entries;
  std::size_t deep = 0;
  std::map<NumberAndLevel, axsPlace> near;
  std::map<std::size_t, std::vector<std::size_t>> near_by_level;
};
