#pragma once

#include "axsChildPositions.h"
#include "axsHandlePool.h"

#include <array>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <utility>

/// The positions of children that the child lists of one document use, one object for all lists of a node. Every operation
/// takes a constant time. Its nodes are watched; see axsParent.
///
/// A program that asks a node for a new list at every step finds the positions that the last list left: those of the last
/// few nodes with many children stay.
class axsChildPositionTable
{
public:
  /// Whether the nodes are to tell of their children: not where these never change.
  enum class Watch
  {
    children,
    none
  };

  /// Takes its memory from `pool`.
  axsChildPositionTable(axsHandlePool& pool, Watch what) : table(Allocator(pool)), watch(what) {}

  /// The positions for a list of the children of `node`. Throws std::bad_alloc when memory runs out.
  axsChildPositions& acquire(axsParent& node);

  /// The list is destroyed.
  void release(axsChildPositions& positions) noexcept;

  // Of a watched node: a child has come, or is about to go.
  void child_linked(axsParent const& parent, axsNode& child) noexcept
  {
    table.find(&parent)->second.child_linked(child);
  }
  void child_unlinking(axsParent const& parent, axsNode& child) noexcept
  {
    table.find(&parent)->second.child_unlinking(child);
  }

  /// A watched node, of which no list is left, is about to be freed.
  void forget(axsParent const& node) noexcept;

  /// Forgets what no list uses, and gives its memory back where no list uses any.
  void forget_unused() noexcept;

private:
  using Allocator = axsHandleAllocator<std::pair<axsNode const* const, axsChildPositions>>;

  void keep_unused(axsChildPositions& positions) noexcept;

  using Table =
    std::unordered_map<axsNode const*, axsChildPositions, std::hash<axsNode const*>, std::equal_to<>, Allocator>;

  Table table;
  // Nodes whose positions stay without a list, a ring: for each further one, those of the oldest may go.
  std::array<axsParent*, 64> unused = {};
  std::size_t next_unused = 0;
  Watch const watch;
};
