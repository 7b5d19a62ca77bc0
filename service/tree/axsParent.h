#pragma once

#include "axsNode.h"

/// A node with children: the document or an element. Keeps the links of its children in order.
class axsParent : public axsNode
{
public:
  /// Links a detached node that nobody holds as the last child. The caller knows that it may stand there.
  void append_new(axsNode& child) noexcept
  {
    if (watched)
      return link(child, nullptr);
    set_parent(child, this);
    if (first == nullptr)
      first = &child;
    else
    {
      axsNode* const last = previous_of(*first);
      set_previous(child, last);
      set_next(*last, &child);
    }
    set_previous(*first, &child);
  }

  /// Makes `child`, a node of this tree that a caller holds as it does this one, a child before `before`, as the last one
  /// if that is null; it is taken out of where it was. The caller knows that it may stand there.
  void insert(axsNode& child, axsNode* before) noexcept;

  /// Takes a child out, which then is the root of a tree of its own; it is freed, with all below it, if nobody holds it.
  void remove(axsNode& child) noexcept;

  /// Whether the tree is told of each child that comes or goes, and when the node is freed (axsTree::child_linked() and
  /// the like). It costs nothing where nobody watches.
  bool is_watched() const noexcept { return watched; }
  void set_watched(bool is_watched) noexcept { watched = is_watched; }

protected:
  axsParent(axsKind kind, std::uint16_t number) noexcept
    : axsNode(kind),
      watched(false),
      indexed(false),
      spare(0),
      element_name_number(number)
  {
  }
  ~axsParent() = default;

  std::uint16_t name_number() const noexcept { return element_name_number; }
  bool is_indexed() const noexcept { return indexed; }
  void set_indexed(bool is_so) noexcept { indexed = is_so; }

private:
  friend class axsNode;

  void link(axsNode& child, axsNode* before) noexcept;
  // Of a child and its parent the tree is the same.
  void unlink(axsNode& child, axsTree& tree) noexcept;

  bool watched : 1;
  // Of an element: whether its attributes have an index.
  bool indexed : 1;
  // The byte is written as a whole, so that a new node need not read it first.
  std::uint8_t spare : 6;
  // Of an element the number of its name; here, where alignment leaves room for it.
  std::uint16_t element_name_number;
  axsNode* first = nullptr;
};

inline axsNode* axsNode::first_child() const noexcept
{
  return is_parent() ? static_cast<axsParent const*>(this)->first : nullptr;
}

inline axsNode* axsNode::last_child() const noexcept
{
  axsNode* const child = first_child();
  return child == nullptr ? nullptr : child->previous_link;
}

inline axsNode* axsNode::previous_sibling() const noexcept
{
  return is_attribute() || parent_link == nullptr || parent_link->first_child() == this ? nullptr : previous_link;
}

inline axsNode* axsNode::next_in_tree(axsNode const& top) const noexcept
{
  axsNode* const child = first_child();
  return child != nullptr ? child : next_after_subtree(top);
}

inline axsNode* axsNode::next_after_subtree(axsNode const& top) const noexcept
{
  for (axsNode const* node = this; node != &top; node = node->parent_link)
    if (node->next_link != nullptr)
      return node->next_link;
  return nullptr;
}
