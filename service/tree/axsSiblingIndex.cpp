#include "axsSiblingIndex.h"

axsSiblingIndex::axsSiblingIndex(axsNode* first) : random(reinterpret_cast<std::uintptr_t>(this) | 1)
{
  axsNode const* previous = nullptr;
  for (axsNode* node = first; node != nullptr; node = node->next_sibling())
  {
    insert(*node, previous);
    previous = node;
  }
}

axsNode* axsSiblingIndex::at(std::size_t position) const noexcept
{
  Entry const* entry = root;
  while (entry != nullptr)
  {
    std::size_t const before = size_of(entry->left);
    if (position == before)
      return entry->node;
    if (position < before)
      entry = entry->left;
    else
    {
      position -= before + 1;
      entry = entry->right;
    }
  }
  return nullptr;
}

void axsSiblingIndex::insert(axsNode& node, axsNode const* previous)
{
  Entry& made = entries.try_emplace(&node, Entry{&node, next_priority()}).first->second;
  Entry* above = previous == nullptr ? root : &entries.find(previous)->second;
  if (above == nullptr)
  {
    root = &made;
    return;
  }
  // The new entry becomes a leaf: to the right of the previous one, or the leftmost one there.
  bool const is_right = previous != nullptr && above->right == nullptr;
  if (!is_right)
  {
    above = previous == nullptr ? above : above->right;
    while (above->left != nullptr)
      above = above->left;
  }
  (is_right ? above->right : above->left) = &made;
  made.parent = above;
  for (Entry* at = above; at != nullptr; at = at->parent)
    ++at->size;
  while (made.parent != nullptr && made.parent->priority < made.priority)
    raise(made);
}

void axsSiblingIndex::remove(axsNode const& node) noexcept
{
  auto const found = entries.find(&node);
  Entry& removed = found->second;
  while (removed.left != nullptr && removed.right != nullptr)
    raise(removed.left->priority > removed.right->priority ? *removed.left : *removed.right);
  for (Entry* at = removed.parent; at != nullptr; at = at->parent)
    --at->size;
  Entry* const below = removed.left != nullptr ? removed.left : removed.right;
  replace_below_parent(removed, below);
  entries.erase(found);
}

// Rotates an entry into the place of its parent, which comes below it.
void axsSiblingIndex::raise(Entry& entry) noexcept
{
  Entry& parent = *entry.parent;
  bool const is_left = parent.left == &entry;
  Entry*& inner = is_left ? entry.right : entry.left;
  replace_below_parent(parent, &entry);
  (is_left ? parent.left : parent.right) = inner;
  if (inner != nullptr)
    inner->parent = &parent;
  inner = &parent;
  parent.parent = &entry;
  entry.size = parent.size;
  parent.size = size_of(parent.left) + size_of(parent.right) + 1;
}

void axsSiblingIndex::replace_below_parent(Entry& entry, Entry* by) noexcept
{
  Entry* const parent = entry.parent;
  if (by != nullptr)
    by->parent = parent;
  if (parent == nullptr)
    root = by;
  else
    (parent->left == &entry ? parent->left : parent->right) = by;
}

// xorshift64
std::uint32_t axsSiblingIndex::next_priority() noexcept
{
  random ^= random << 13;
  random ^= random >> 7;
  random ^= random << 17;
  return static_cast<std::uint32_t>(random >> 32);
}
