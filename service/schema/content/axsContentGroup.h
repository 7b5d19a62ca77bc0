#pragma once

#include "axsContentIndex.h"
#include "axsContentItem.h"
#include "axsModelGroup.h"
#include "axsReach.h"

#include <algorithm>
#include <cstdint>
#include <vector>

/// A model group (Part 1, 3.8.1) made ready for running, once for all particles whose term it is.
struct axsContentGroup
{
  axsModelGroup::Compositor compositor = axsModelGroup::Compositor::sequence;
  std::vector<axsContentItem> items;
  bool nullable = false;
  /// Whether an item within, at any depth, is weak.
  bool is_weak = false;
  /// Of a sequence, for each item the first one from there on that cannot be passed without a child; items.size() where
  /// all can.
  std::vector<std::uint32_t> next_required;
  /// How many of the items cannot be passed without a child.
  std::uint32_t required = 0;
  /// What can take the first child.
  axsReach first;
  axsContentIndex index;

  bool is_sequence() const noexcept { return compositor == axsModelGroup::Compositor::sequence; }
  bool is_all() const noexcept { return compositor == axsModelGroup::Compositor::all; }

  /// Whether the item can take such a name as its first one.
  bool begins(axsContentItem const& item, std::uint32_t symbol, std::uint32_t space) const noexcept
  {
    return item.group != nullptr ? item.group->first.has(symbol, space) : item.takes(symbol, space);
  }

  /// The first item at or after `from` that can begin with the name, and that is reached from there; items.size() if
  /// none is. Constant time, but for wildcards.
  std::uint32_t find(std::uint32_t from, std::uint32_t symbol, std::uint32_t space) const noexcept
  {
    auto const count = static_cast<std::uint32_t>(items.size());
    std::uint32_t const end = !is_sequence() ? count : from < count ? std::min(next_required[from] + 1, count) : count;
    if (!index.is_used())
    {
      for (std::uint32_t i = from; i < end; ++i)
        if (begins(items[i], symbol, space))
          return i;
      return count;
    }
    std::uint32_t const found = index.find(*this, from, symbol, space);
    return found < end ? found : count;
  }
};
