#pragma once

#include "axsParent.h"
#include "axsSiblingIndex.h"

#include <cstddef>
#include <memory>

/// Finds the children of one node by their position, for all lists of them. Its document tells it of each child that comes
/// or goes.
///
/// A walk in whatever direction costs a step for each child: the last child found, the first and the last one are starting
/// points. When walks between far positions have added up to several times the number of children, an index takes over.
/// So m operations on n children cost O((m + n) log n), whatever they are.
class axsChildPositions
{
public:
  explicit axsChildPositions(axsParent& node) noexcept : parent(&node) {}

  /// The child at `position`, null beyond the ends.
  axsNode* at(int position) noexcept;

  /// Costs a step for each child the first time.
  int count() noexcept;

  /// Whether so many are known to be there.
  bool has_more_than(int children) const noexcept { return child_count > children; }

  // A child has come, or is about to go.
  void child_linked(axsNode& child) noexcept;
  void child_unlinking(axsNode& child) noexcept;

  axsParent& node() const noexcept { return *parent; }

  // For its owner: the number of lists that use it, and whether it is to stay when there are none.
  std::size_t lists = 0;
  bool is_kept = false;

private:
  axsNode* walk_to(int position) noexcept;
  void make_index() noexcept;

  axsParent* parent;
  // -1 while it is not known.
  int child_count = -1;
  // A child and its position; null while none is known.
  axsNode* place = nullptr;
  int place_position = 0;
  std::size_t steps = 0;
  std::unique_ptr<axsSiblingIndex> index;
};
