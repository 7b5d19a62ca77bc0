#pragma once

#include "axsXPathModel.h"
#include "axsXPathNodeMap.h"

#include <cstddef>
#include <vector>

/// Sorts nodes of one tree into document order (XPath 1.0, section 5): an element comes before its namespace nodes, these
/// before its attributes, and these before its children.
///
/// A few nodes are compared by way of their ancestors. For many, or in a deep tree, one walk over the tree numbers the
/// nodes first: sorting n nodes costs that walk and O(n log n). Valid as long as the tree does not change.
class axsXPathDocumentOrder
{
public:
  explicit axsXPathDocumentOrder(axsXPathModel const& tree) noexcept;

  /// Sorts and removes duplicates. Throws std::bad_alloc when memory runs out.
  void sort(std::vector<axsXPathNode>& nodes);

private:
  enum Relation
  {
    before,
    same,
    after,
    too_far
  };

  bool sort_near(std::vector<axsXPathNode>& nodes);
  bool is_sorted_near(std::vector<axsXPathNode> const& nodes);
  void sort_by_place(std::vector<axsXPathNode>& nodes);

  Relation compare(axsXPathNode left, axsXPathNode right);
  Relation compare_within(axsXPathNode left, axsXPathNode right);
  Relation compare_nodes(axsNode const& left, axsNode const& right);
  Relation compare_siblings(axsNode const& left, axsNode const& right);
  bool is_far() noexcept { return --steps_left < 0; }

  void number(std::vector<axsXPathNode> const& nodes);
  void number_node(axsNode& node, std::size_t order);
  axsXPathPlace place_of(axsXPathNode node) noexcept;

  axsXPathModel const& tree;
  axsXPathNodeMap places;
  long long steps_left = 0;
  int walks = 0;
  bool is_all_numbered = false;
};
