#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

struct axsContentGroup;

/// Finds the items of a large group that can begin with a name. Made once, for groups of which looking at each item would
/// take too long; memory in proportion to the items.
class axsContentIndex
{
public:
  bool is_used() const noexcept { return used; }

  void build(axsContentGroup const& group);

  /// The first item at or after `from` that can begin with the name; the number of items if none can.
  std::uint32_t find(
    axsContentGroup const& group, std::uint32_t from, std::uint32_t symbol, std::uint32_t space) const noexcept;

private:
  struct Entry
  {
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t item;
  };

  // The items that can begin with each of a span of names, which lies within that of the entry `enclosing`, counted from 1;
  // 0 if it does not.
  struct Wide
  {
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t enclosing;
    std::vector<std::uint32_t> items;
  };

  struct Narrow
  {
    std::uint32_t begin = 0; // in `narrow_items`
    std::uint32_t count = 0;
  };

  void collect(axsContentGroup const& group, std::vector<Entry>& entries);
  void add_narrow(Entry const& entry);
  void add_wide(Entry const& entry, std::vector<std::uint32_t>& open);
  std::uint32_t find_narrow(std::uint32_t from, std::uint32_t symbol) const noexcept;
  std::uint32_t find_wide(std::uint32_t from, std::uint32_t symbol) const noexcept;

  bool used = false;
  std::unordered_map<std::uint32_t, Narrow> narrow;
  std::vector<std::uint32_t> narrow_items;
  std::vector<Wide> wide;
  // Items that are asked themselves: those with wildcards, and the group that can begin with the most names.
  std::vector<std::uint32_t> asked;
};
