#include "axsXPathNodeMap.h"

#include <utility>

bool axsXPathNodeMap::insert(axsXPathNode node)
{
  if (used * 2 >= entries.size())
    grow();
  Entry& entry = entry_of(node);
  if (!entry.node.is_none())
    return false;
  entry.node = node;
  ++used;
  return true;
}

axsXPathPlace* axsXPathNodeMap::find(axsXPathNode node) noexcept
{
  if (entries.empty())
    return nullptr;
  Entry& entry = entry_of(node);
  return entry.node.is_none() ? nullptr : &entry.place;
}

axsXPathNodeMap::Entry& axsXPathNodeMap::entry_of(axsXPathNode node) noexcept
{
  std::size_t const mask = entries.size() - 1;
  std::size_t at = axsXPathNode::Hash()(node) & mask;
  while (!entries[at].node.is_none() && entries[at].node != node)
    at = (at + 1) & mask;
  return entries[at];
}

void axsXPathNodeMap::grow()
{
  std::vector<Entry> old(entries.empty() ? 64 : entries.size() * 2);
  old.swap(entries);
  for (Entry const& entry : old)
    if (!entry.node.is_none())
      entry_of(entry.node) = entry;
}
