#pragma once

#include "axsPlace.h"
#include "axsValueSet.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The values of one identity constraint in one element (Part 1, 3.11.4, identity-constraint table), and where they stand.
/// Memory in proportion to them.
class axsIdentityTable
{
public:
  static constexpr std::size_t none = axsValueSet::none;

  /// Levels count the elements that are open, from 1. All own values are of the element at `level`.
  explicit axsIdentityTable(std::size_t level) noexcept : own_level(static_cast<std::uint32_t>(level)) {}

  std::size_t size() const noexcept { return entries.size(); }
  axsPlace place(std::size_t number) const noexcept { return entries[number].place; }

  /// Adds a value of the element at `level`, this one's or one within it of the same constraint: where that leads to any
  /// depth, its values are this element's, too. The number of the value as it was before; none if it is new.
  std::size_t add(std::string_view value, axsPlace place, std::size_t level);

  /// Whether a reference finds the value.
  bool has(std::string_view value) const;

  /// Whether a reference finds it in an element within, which is at `level` and began when the table had `first` values.
  /// Of a value that was there twice, which is an error, the answer is yes.
  bool has_within(std::string_view value, std::size_t first, std::size_t level) const;

  /// Takes over what a table of an element within has: the own values remain; of equal ones of two elements within, there
  /// is none, and `lose` is told of it. The smaller table is walked, so that what is handed up through all levels of a
  /// document costs no more than a logarithm of it for each value.
  void inherit(axsIdentityTable&& inner, std::function<void(std::string_view value)> const& lose);

private:
  struct Entry
  {
    axsPlace place;
    std::uint32_t level;        // of the innermost element whose own value it is
    std::uint32_t conflict = 0; // the level at which two elements within had it; from there on, it is not there
    bool is_repeated = false;   // it was added twice
  };

  bool is_own(Entry const& entry) const noexcept { return entry.level == own_level; }
  bool inherit_entry(std::string_view value, Entry const& entry);
  void put_own(std::string_view value, Entry const& entry);

  std::uint32_t own_level;
  axsValueSet values;
  std::vector<Entry> entries;
};
