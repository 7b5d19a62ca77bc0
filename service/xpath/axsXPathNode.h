#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

class axsNode;

/// What XPath counts as a node without the tree having one for it: a namespace in scope of an element, or the root above
/// the topmost node of a detached tree. Kept by the evaluation, once each.
struct axsXPathExtraNode
{
  /// Whose namespace it is; of a root the topmost node.
  axsNode* base;
  /// The attribute that declares the namespace, null for the one of the prefix xml, which needs no declaration.
  axsNode* declaration;
  /// The place among the namespaces of the element; of a root negative.
  int index;

  bool is_root() const noexcept { return index < 0; }
};

/// A node as XPath sees it: one of the tree, one besides it, or none. A plain value of the size of a pointer; two are
/// equal exactly if they are the same node.
class axsXPathNode
{
public:
  axsXPathNode() noexcept = default;
  axsXPathNode(axsNode* node) noexcept : bits(reinterpret_cast<std::uintptr_t>(node)) {}
  axsXPathNode(axsXPathExtraNode const* extra) noexcept : bits(reinterpret_cast<std::uintptr_t>(extra) | extra_bit) {}

  bool is_none() const noexcept { return bits == 0; }
  bool is_extra() const noexcept { return (bits & extra_bit) != 0; }

  /// The node of the tree; only where it is one.
  axsNode* node() const noexcept { return reinterpret_cast<axsNode*>(bits); }

  axsXPathExtraNode const& extra() const noexcept
  {
    return *reinterpret_cast<axsXPathExtraNode const*>(bits - extra_bit);
  }

  bool operator==(axsXPathNode other) const noexcept { return bits == other.bits; }
  bool operator!=(axsXPathNode other) const noexcept { return bits != other.bits; }

  struct Hash
  {
    std::size_t operator()(axsXPathNode node) const noexcept { return std::hash<std::uintptr_t>()(node.bits >> 3); }
  };

private:
  // Free in every pointer to what is aligned for pointers.
  static constexpr std::uintptr_t extra_bit = 1;

  std::uintptr_t bits = 0;
};
