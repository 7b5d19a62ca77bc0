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

/// A hash map from nodes to places in document order. Throws std::bad_alloc when memory runs out.
class axsXPathNodeMap
{
public:
  /// Adds the node with the place 0; false if it is there already.
  bool insert(axsXPathNode node);

  /// The place of the node, null if it was not added; valid until the next insert().
  axsXPathPlace* find(axsXPathNode node) noexcept;

private:
  struct Entry
  {
    axsXPathNode node;
    axsXPathPlace place;
  };

  /// The entry of the node or, if there is none, the free one for it.
  Entry& entry_of(axsXPathNode node) noexcept;
  void grow();

  // Their number is a power of two, of which at most half are in use.
  std::vector<Entry> entries;
  std::size_t used = 0;
};
