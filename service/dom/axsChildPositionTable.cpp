#include "axsChildPositionTable.h"

#include <algorithm>

namespace
{
// Fewer children are found soon enough without what an earlier list left.
int const few_children = 32;
}

axsChildPositions& axsChildPositionTable::acquire(axsParent& node)
{
  axsChildPositions& positions = table.try_emplace(&node, node).first->second;
  if (watch == Watch::children)
    node.set_watched(true);
  ++positions.lists;
  return positions;
}

void axsChildPositionTable::release(axsChildPositions& positions) noexcept
{
  if (--positions.lists > 0)
    return;
  if (!positions.is_kept && !positions.has_more_than(few_children))
    return forget(positions.node());
  if (!positions.is_kept)
    keep_unused(positions);
}

void axsChildPositionTable::forget(axsParent const& node) noexcept
{
  auto const found = table.find(&node);
  axsParent& forgotten = found->second.node();
  if (watch == Watch::children)
    forgotten.set_watched(false);
  if (found->second.is_kept)
    std::replace(unused.begin(), unused.end(), &forgotten, static_cast<axsParent*>(nullptr));
  table.erase(found);
}

void axsChildPositionTable::forget_unused() noexcept
{
  for (axsParent*& kept : unused)
  {
    axsParent* const node = std::exchange(kept, nullptr);
    if (node == nullptr)
      continue;
    axsChildPositions& positions = table.find(node)->second;
    positions.is_kept = false;
    if (positions.lists == 0)
      forget(*node);
  }
  if (table.empty())
    Table(table.get_allocator()).swap(table);
}

void axsChildPositionTable::keep_unused(axsChildPositions& positions) noexcept
{
  positions.is_kept = true;
  axsParent* const oldest = std::exchange(unused[next_unused], &positions.node());
  next_unused = (next_unused + 1) % unused.size();
  if (oldest == nullptr)
    return;
  axsChildPositions& replaced = table.find(oldest)->second;
  replaced.is_kept = false;
  if (replaced.lists == 0)
    forget(*oldest);
}
