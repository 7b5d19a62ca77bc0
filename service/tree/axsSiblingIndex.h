#pragma once

#include "axsNode.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>

/// Finds siblings, the children or the attributes of one node, by their position, for as long as it is told of each that
/// comes or goes.
///
/// A treap over the siblings with the size of each subtree: every operation costs O(log n) on average, making it
/// O(n log n). What may run out of memory throws std::bad_alloc and leaves an object that is only good to be destroyed.
class axsSiblingIndex
{
public:
  /// Of the siblings from `first` on, which may be null.
  explicit axsSiblingIndex(axsNode* first);
  axsSiblingIndex(axsSiblingIndex const&) = delete;
  axsSiblingIndex& operator=(axsSiblingIndex const&) = delete;

  std::size_t size() const noexcept { return entries.size(); }

  /// The sibling at `position`, null beyond the last one.
  axsNode* at(std::size_t position) const noexcept;

  /// A node has been linked after `previous`, as the first one if that is null.
  void insert(axsNode& node, axsNode const* previous);

  /// A node is about to be unlinked.
  void remove(axsNode const& node) noexcept;

private:
  // In document order, what is below `left` comes before an entry and what is below `right` after it. No entry has a
  // higher priority than its parent; priorities are random, which keeps the tree flat.
  struct Entry
  {
    axsNode* node;
    std::uint32_t priority;
    Entry* parent = nullptr;
    Entry* left = nullptr;
    Entry* right = nullptr;
    std::size_t size = 1;
  };

  static std::size_t size_of(Entry const* entry) noexcept { return entry == nullptr ? 0 : entry->size; }

  void raise(Entry& entry) noexcept;
  void replace_below_parent(Entry& entry, Entry* by) noexcept;
  std::uint32_t next_priority() noexcept;

  std::unordered_map<axsNode const*, Entry> entries;
  Entry* root = nullptr;
  std::uint64_t random;
};
