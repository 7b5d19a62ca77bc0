#include "axsPatternTree.h"

#include <algorithm>

namespace
{
std::uint64_t const largest = axsPatternTree::unbounded;

std::uint64_t sum(std::uint64_t left, std::uint64_t right) noexcept
{
  return left > largest - right ? largest : left + right;
}

std::uint64_t product(std::uint64_t left, std::uint64_t right) noexcept
{
  if (left == 0 || right == 0)
    return 0;
  return left > largest / right ? largest : left * right;
}

// The instructions of a repeat that is written out: copies of the part, and a split for each that may be left out or for the
// loop.
std::uint64_t written_out(std::uint64_t part, std::uint64_t min, std::uint64_t max) noexcept
{
  if (max == largest)
    return sum(product(std::max<std::uint64_t>(min, 1), part), 1);
  return sum(product(max, part), max - min);
}

// Whether the inner repeat, repeated itself, takes every number from the least to the largest product.
bool is_contiguous(axsPatternTree::Node const& inner, std::uint64_t min, std::uint64_t max) noexcept
{
  if (min == max)
    return true;
  // (min + 1) * inner.min <= min * inner.max + 1, and then it holds for all larger numbers, too.
  return product(sum(min, 1), inner.min) <= sum(product(min, inner.max), 1);
}
}

axsPatternTree::Index axsPatternTree::add(Node const& node)
{
  nodes.push_back(node);
  return static_cast<Index>(nodes.size() - 1);
}

axsPatternTree::Index axsPatternTree::add_characters(axsCharacterSet const& set)
{
  sets.push_back(set);
  return static_cast<Index>(sets.size() - 1);
}

axsPatternTree::Index axsPatternTree::add_empty()
{
  return add(Node());
}

axsPatternTree::Index axsPatternTree::add_set(Index set)
{
  Node node;
  node.kind = Kind::set;
  node.may_be_empty = false;
  node.set = set;
  return add(node);
}

axsPatternTree::Index axsPatternTree::add_group(Kind kind, Index first)
{
  Node node;
  node.kind = kind;
  node.first = first;
  node.may_be_empty = kind == Kind::sequence;
  node.cost = node.counted_cost = 0;
  for (Index part = first; part != none; part = nodes[part].next)
  {
    node.may_be_empty = kind == Kind::sequence ? node.may_be_empty && nodes[part].may_be_empty
                                               : node.may_be_empty || nodes[part].may_be_empty;
    std::uint64_t const more = kind == Kind::choice ? 1 : 0;
    node.cost = sum(node.cost, sum(nodes[part].cost, more));
    node.counted_cost = sum(node.counted_cost, sum(nodes[part].counted_cost, more));
  }
  return add(node);
}

axsPatternTree::Index axsPatternTree::add_sequence(Index first)
{
  return add_group(Kind::sequence, first);
}

axsPatternTree::Index axsPatternTree::add_choice(Index first)
{
  return add_group(Kind::choice, first);
}

axsPatternTree::Index axsPatternTree::add_repeat(Index part, std::uint64_t min, std::uint64_t max)
{
  if (max == 0 || nodes[part].kind == Kind::empty)
    return add_empty();
  if (min == 1 && max == 1)
    return part;
  Node node;
  node.kind = Kind::repeat;
  node.min = min;
  node.max = max;
  if (nodes[part].kind == Kind::repeat && is_contiguous(nodes[part], min, max))
  {
    node.min = product(nodes[part].min, min);
    node.max = product(nodes[part].max, max);
    part = nodes[part].first;
  }
  Node const& repeated = nodes[part];
  // What may be empty is there as often as needed.
  if (repeated.may_be_empty)
    node.min = 0;
  node.first = part;
  node.may_be_empty = node.min == 0;
  set_costs(node, repeated);
  return add(node);
}

// A repeated set is one instruction that counts. Of another part, the copies that must be there are written out, and the
// others are one copy in a loop, in which nothing else counts.
void axsPatternTree::set_costs(Node& repeat, Node const& part) noexcept
{
  std::uint64_t const counted_part = part.counted_cost;
  repeat.cost = written_out(part.cost, repeat.min, repeat.max);
  repeat.counted_cost = written_out(counted_part, repeat.min, repeat.max);
  bool const is_set = part.kind == Kind::set;
  if (!is_set && repeat.max == unbounded)
    return;
  std::uint64_t const counting = is_set ? 1 : sum(product(repeat.min, counted_part), sum(part.cost, 2));
  repeat.is_counted = counting < repeat.counted_cost;
  repeat.counted_cost = std::min(counting, repeat.counted_cost);
}
