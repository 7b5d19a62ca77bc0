#pragma once

#include "axsPlace.h"
#include "axsValueSet.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

/// The values of one identity constraint in one element and those within it, as references to it see them (Part 1, 3.11.5).
/// Memory in proportion to them.
class axsIdentityTable
{
public:
  /// Of an element; levels count those that are open, from 1. If it has a constraint of any depth, `has_deep`: what ".//"
  /// selects in the elements within that have it too, it selects in this one.
  static axsIdentityTable of_element(std::size_t level, bool has_deep) { return {2 * level, has_deep}; }
  /// Of the children of an element, together.
  static axsIdentityTable of_children(std::size_t level) { return {2 * level + 1, false}; }

  std::size_t size() const noexcept { return entries.size(); }

  /// Adds a value of the element itself; `is_deep` if ".//" selects it. Where it stands already, null if it is new. The
  /// pointer holds until the next value.
  axsPlace const* add(std::string_view value, axsPlace place, bool is_deep);

  /// Whether a reference finds the value.
  bool has(std::string_view value) const;

  /// Takes over what a table of an element within has: the own values remain; of equal ones of two elements within, there
  /// is none, and `lose` is told of it. The smaller table is walked, so that what is handed up through all levels of a
  /// document costs no more than a logarithm of it for each value.
  void inherit(axsIdentityTable&& inner, std::function<void(std::string_view value)> const& lose);

private:
  axsIdentityTable(std::size_t depth, bool has_deep)
    : own_depth(static_cast<std::uint32_t>(depth)),
      owns_deep(has_deep),
      cleared(has_deep ? own_depth : nowhere)
  {
  }

  static constexpr std::uint32_t nowhere = std::numeric_limits<std::uint32_t>::max();

  struct Entry
  {
    axsPlace place;
    std::uint32_t depth;        // of the element whose own value it is
    std::uint32_t conflict = 0; // the depth at which two elements within had it; from there on, it is not there
    bool is_deep = false;       // from the next element on that owns what is deep, it is there again
  };

  bool is_own(Entry const& entry) const noexcept { return entry.depth == own_depth || (owns_deep && entry.is_deep); }
  std::uint32_t conflict_of(Entry const& entry) const noexcept;
  bool is_lost_within(std::uint32_t conflict) const noexcept { return conflict != 0 && conflict != own_depth; }
  void put_own(std::string_view value, Entry entry);
  bool inherit_entry(std::string_view value, Entry entry);
  void inherit_lost(std::string_view value, Entry entry);

  // The further out, the smaller; that of an element is less than that of its children.
  std::uint32_t own_depth;
  bool owns_deep;
  // That of the outermost element yet that owned what is deep: its conflicts within are over.
  std::uint32_t cleared;
  axsValueSet values;
  std::vector<Entry> entries;
};
