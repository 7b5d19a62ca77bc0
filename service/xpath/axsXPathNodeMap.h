#pragma once

#include "axsXPathNode.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// A place in document order: that of a node, and the place within it of its namespaces and attributes.
struct axsXPathPlace
{
  std::uint64_t node = 0;
  std::uint64_t within = 0;

  bool operator<(axsXPathPlace const& other) const noexcept
  {
    return node != other.node ? node < other.node : within < other.within;
  }
};

/// Nodes with a place each, found by the node. Throws std::bad_alloc when memory runs out.
class axsXPathNodeMap
{
public:
  /// Adds the node with an unknown place, 0; false if it was there.
  bool insert(axsXPathNode node);

  /// The place of the node, null if it was not added; good until the next node is.
  axsXPathPlace* find(axsXPathNode node) noexcept;

private:
  struct Entry
  {
    axsXPathNode node;
    axsXPathPlace place;
  };

  /// The entry of the node or the free one where it belongs.
  Entry& entry_of(axsXPathNode node) noexcept;
  void grow();

  // Their number is a power of two, of which at most half are in use.
  std::vector<Entry> entries;
  std::size_t used = 0;
};
