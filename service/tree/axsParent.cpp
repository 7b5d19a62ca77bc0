#include "axsParent.h"

#include "axsTree.h"

void axsParent::insert(axsNode& child, axsNode* before) noexcept
{
  axsNode& held_by = child.parent() != nullptr ? *child.parent() : child.tree();
  if (child.parent() != nullptr)
    static_cast<axsParent*>(child.parent())->unlink(child, tree());
  link(child, before);
  acquire();
  held_by.release();
}

void axsParent::remove(axsNode& child) noexcept
{
  axsTree& tree = this->tree();
  unlink(child, tree);
  if (!child.is_held())
  {
    tree.free_subtree(child);
    return;
  }
  tree.acquire();
  release();
}

void axsParent::link(axsNode& child, axsNode* before) noexcept
{
  set_parent(child, this);
  set_next(child, before);
  if (first == nullptr)
  {
    set_previous(child, &child);
    first = &child;
  }
  else if (before == nullptr)
  {
    axsNode* const last = previous_of(*first);
    set_previous(child, last);
    set_next(*last, &child);
    set_previous(*first, &child);
  }
  else
  {
    axsNode* const previous = previous_of(*before);
    set_previous(child, previous);
    set_previous(*before, &child);
    if (before == first)
      first = &child;
    else
      set_next(*previous, &child);
  }
  if (watched)
    tree().child_linked(*this, child);
}

void axsParent::unlink(axsNode& child, axsTree& tree) noexcept
{
  tree.nodes_leave();
  if (watched)
    tree.child_unlinking(*this, child);
  axsNode* const next = child.next_sibling();
  axsNode* const previous = previous_of(child);
  axsNode* const last = previous_of(*first);
  if (&child == first)
    first = next;
  else
    set_next(*previous, next);
  if (next != nullptr)
    set_previous(*next, previous);
  else if (&child == last && first != nullptr)
    set_previous(*first, previous);
  set_parent(child, nullptr);
  set_next(child, nullptr);
  set_previous(child, nullptr);
}
