#include "axsXPathDocumentOrder.h"

#include <algorithm>
#include <utility>

namespace
{
// Up to so many nodes are sorted by insertion, with so many steps through the tree for each at most.
std::size_t const few_nodes = 32;
long long const steps_for_few = 2000;
long long const steps_each = 16;

// So many walks number the nodes in question only; the next one numbers all, and is the last one.
int const partial_walks = 3;

std::uint64_t const within_attributes = std::uint64_t{1} << 32;

/// The element that an attribute or namespace belongs to; for other nodes the node itself.
axsNode& holder(axsXPathNode node) noexcept
{
  axsNode& anchor = axsXPathModel::anchor(node);
  return anchor.is_attribute() && anchor.parent() != nullptr ? *anchor.parent() : anchor;
}

enum Rank
{
  detached_root_rank,
  node_rank,
  namespace_rank,
  attribute_rank
};

Rank rank_within(axsXPathNode node) noexcept
{
  if (node.is_virtual())
    return node.virtual_node().is_root() ? detached_root_rank : namespace_rank;
  return node.node()->is_attribute() ? attribute_rank : node_rank;
}
}

axsXPathDocumentOrder::axsXPathDocumentOrder(axsXPathModel const& ordered) noexcept : tree(ordered) {}

void axsXPathDocumentOrder::sort(std::vector<axsXPathNode>& nodes)
{
  if (nodes.size() < 2)
    return;
  if (nodes.size() <= few_nodes ? sort_near(nodes) : is_sorted_near(nodes))
    return;
  sort_by_place(nodes);
}

bool axsXPathDocumentOrder::sort_near(std::vector<axsXPathNode>& nodes)
{
  steps_left = steps_for_few;
  std::size_t sorted = 1;
  for (std::size_t i = 1; i < nodes.size(); ++i)
  {
    axsXPathNode const node = nodes[i];
    std::size_t at = sorted;
    Relation relation = after;
    while (at > 0 && (relation = compare(node, nodes[at - 1])) == before)
      --at;
    if (relation == too_far)
    {
      // What was read already stands in front or was dropped as a double, and is kept.
      nodes.erase(nodes.begin() + static_cast<std::ptrdiff_t>(sorted), nodes.begin() + static_cast<std::ptrdiff_t>(i));
      return false;
    }
    if (relation == same)
      continue;
    nodes[sorted++] = node;
    std::rotate(nodes.begin() + static_cast<std::ptrdiff_t>(at),
      nodes.begin() + static_cast<std::ptrdiff_t>(sorted) - 1, nodes.begin() + static_cast<std::ptrdiff_t>(sorted));
  }
  nodes.resize(sorted);
  return true;
}

bool axsXPathDocumentOrder::is_sorted_near(std::vector<axsXPathNode> const& nodes)
{
  steps_left = steps_each * static_cast<long long>(nodes.size());
  for (std::size_t i = 1; i < nodes.size(); ++i)
    if (compare(nodes[i - 1], nodes[i]) != before)
      return false;
  return true;
}

void axsXPathDocumentOrder::sort_by_place(std::vector<axsXPathNode>& nodes)
{
  number(nodes);
  std::vector<std::pair<axsXPathPlace, axsXPathNode>> placed;
  placed.reserve(nodes.size());
  for (axsXPathNode const node : nodes)
    placed.emplace_back(place_of(node), node);
  std::sort(placed.begin(), placed.end(), [](auto const& left, auto const& right) { return left.first < right.first; });
  nodes.clear();
  for (auto const& entry : placed)
    if (nodes.empty() || nodes.back() != entry.second)
      nodes.push_back(entry.second);
}

axsXPathDocumentOrder::Relation axsXPathDocumentOrder::compare(axsXPathNode left, axsXPathNode right)
{
  if (left == right)
    return same;
  axsNode const& left_holder = holder(left);
  axsNode const& right_holder = holder(right);
  return &left_holder == &right_holder ? compare_within(left, right) : compare_nodes(left_holder, right_holder);
}

axsXPathDocumentOrder::Relation axsXPathDocumentOrder::compare_within(axsXPathNode left, axsXPathNode right)
{
  Rank const left_rank = rank_within(left);
  Rank const right_rank = rank_within(right);
  if (left_rank != right_rank)
    return left_rank < right_rank ? before : after;
  if (left.is_virtual())
    return left.virtual_node().index < right.virtual_node().index ? before : after;
  return compare_siblings(*left.node(), *right.node());
}

axsXPathDocumentOrder::Relation axsXPathDocumentOrder::compare_nodes(axsNode const& left, axsNode const& right)
{
  long long left_depth = 0;
  long long right_depth = 0;
  for (axsNode const* at = &left; at->parent() != nullptr; at = at->parent(), ++left_depth)
    if (is_far())
      return too_far;
  for (axsNode const* at = &right; at->parent() != nullptr; at = at->parent(), ++right_depth)
    if (is_far())
      return too_far;

  axsNode const* left_at = &left;
  axsNode const* right_at = &right;
  for (long long depth = left_depth; depth > right_depth; --depth)
    left_at = left_at->parent();
  for (long long depth = right_depth; depth > left_depth; --depth)
    right_at = right_at->parent();
  if (left_at == right_at)
    return left_depth < right_depth ? before : after;
  while (left_at->parent() != right_at->parent())
  {
    left_at = left_at->parent();
    right_at = right_at->parent();
  }
  return compare_siblings(*left_at, *right_at);
}

axsXPathDocumentOrder::Relation axsXPathDocumentOrder::compare_siblings(axsNode const& left, axsNode const& right)
{
  axsNode const* from_left = &left;
  axsNode const* from_right = &right;
  while (!is_far())
  {
    from_left = from_left->next_sibling();
    if (from_left == &right)
      return before;
    if (from_left == nullptr)
      return after;
    from_right = from_right->next_sibling();
    if (from_right == &left)
      return after;
    if (from_right == nullptr)
      return before;
  }
  return too_far;
}

void axsXPathDocumentOrder::number(std::vector<axsXPathNode> const& nodes)
{
  if (is_all_numbered)
    return;
  bool is_new = false;
  for (axsXPathNode const node : nodes)
  {
    is_new |= places.insert(&holder(node));
    if (rank_within(node) == attribute_rank)
      is_new |= places.insert(node);
  }
  if (!is_new)
    return;

  is_all_numbered = ++walks > partial_walks;
  axsNode& top = tree.top();
  std::size_t order = 0;
  for (axsNode* at = &top; at != nullptr; at = at->next_in_tree(top))
    number_node(*at, ++order);
}

void axsXPathDocumentOrder::number_node(axsNode& node, std::size_t order)
{
  if (is_all_numbered)
    places.insert(&node);
  axsXPathPlace* const place = places.find(&node);
  if (place == nullptr)
    return;
  place->node = order;
  std::uint64_t within = 0;
  for (axsNode* attribute = node.first_attribute(); attribute != nullptr; attribute = attribute->next_sibling())
  {
    if (is_all_numbered)
      places.insert(attribute);
    if (axsXPathPlace* const found = places.find(attribute))
      *found = {order, within};
    ++within;
  }
}

axsXPathPlace axsXPathDocumentOrder::place_of(axsXPathNode node) noexcept
{
  axsXPathPlace place = *places.find(&axsXPathModel::anchor(node));
  switch (rank_within(node))
  {
  case detached_root_rank:
    break;
  case node_rank:
    place.within = 1;
    break;
  case namespace_rank:
    place.within = static_cast<std::uint64_t>(node.virtual_node().index) + 2;
    break;
  default:
    place.within += within_attributes;
  }
  return place;
}
