#pragma once

#include <cstddef>
#include <cstdint>

class axsNode;

/// A node of the data model for which the tree has no record: a namespace in scope of an element, or the root above a
/// detached tree. The evaluation owns one object for each.
struct axsXPathVirtualNode
{
  /// Whose namespace it is; of a root the topmost node.
  axsNode* base;
  /// The attribute that declares the namespace, null for the one of the prefix xml, which needs no declaration.
  axsNode* declaration;
  /// The place among the namespaces of the element; of a root negative.
  int index;

  bool is_root() const noexcept { return index < 0; }
};

/// A node of the data model: a node of the tree, a virtual one, or none. A plain value of the size of a pointer; two are
/// equal exactly if they are the same node.
class axsXPathNode
{
public:
  axsXPathNode() noexcept = default;
  axsXPathNode(axsNode* node) noexcept : address(reinterpret_cast<char*>(node)) {}
  axsXPathNode(axsXPathVirtualNode const* extra) noexcept : address(reinterpret_cast<char const*>(extra) + virtual_mark)
  {
  }

  bool is_none() const noexcept { return address == nullptr; }
  bool is_virtual() const noexcept { return (reinterpret_cast<std::uintptr_t>(address) & virtual_mark) != 0; }

  /// The node of the tree; only where it is one.
  axsNode* node() const noexcept { return reinterpret_cast<axsNode*>(const_cast<char*>(address)); }

  axsXPathVirtualNode const& virtual_node() const noexcept
  {
    return *reinterpret_cast<axsXPathVirtualNode const*>(address - virtual_mark);
  }

  bool operator==(axsXPathNode other) const noexcept { return address == other.address; }
  bool operator!=(axsXPathNode other) const noexcept { return address != other.address; }

  struct Hash
  {
    std::size_t operator()(axsXPathNode node) const noexcept
    {
      return reinterpret_cast<std::uintptr_t>(node.address) >> 3;
    }
  };

private:
  // Both kinds have even addresses; an odd one marks a virtual node.
  static constexpr std::size_t virtual_mark = 1;

  char const* address = nullptr;
};
