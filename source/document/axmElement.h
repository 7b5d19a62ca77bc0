#pragma once

#include "axmNode.h"

/// An element (DOM Core, interface Element). Interface; see axmNode for ownership, threads and order of operations.
///
/// A name that is none (XML 1.0, 2.3, [5] Name) names no attribute. Finding an attribute costs a step for each one before it
/// or, where there are hundreds, O(log n) and the making of an index once.
class AXM_API axmElement : public virtual axmNode
{
public:
  axmElement();
  ~axmElement() override;

  /// Reserved: keeps its place in the order; never called.
  virtual void reserved_element_0() = 0;

  /// The value of the attribute `name`, exactly as set; empty when it is absent, which hasAttribute() tells apart.
  virtual apString getAttribute(apString const& name) const = 0;

  /// Creates the attribute `name` or overwrites its value, which may be empty. Changes nothing where `name` is not a name;
  /// hasAttribute() tells.
  virtual void setAttribute(apString const& name, apString const& value) = 0;

  /// Takes the attribute `name` away, if it is there.
  virtual void removeAttribute(apString const& name) = 0;

  virtual bool hasAttribute(apString const& name) const = 0;

  /// The nodes that the XPath expression `xpath` selects with this element as its context, in document order
  /// (XML Path Language 1.0). Never an empty pointer: where nothing matches, an empty list, and so for an expression that is
  /// wrong, as "//[", or whose value is no set of nodes. Costs a walk over what the path leads to, at most over the whole
  /// document, for each step of a plain path.
  virtual std::shared_ptr<axmNodeList> selectNodes(apString const& xpath) = 0;

  /// The first node that selectNodes() would give, an empty pointer when nothing matches. Ends at that node where the path
  /// allows it.
  virtual std::shared_ptr<axmNode> selectSingleNode(apString const& xpath) = 0;

  /// Reserved: keep their places in the order; never called.
  virtual void reserved_element_7() = 0;
  virtual void reserved_element_8() = 0;
  virtual void reserved_element_9() = 0;
  virtual void reserved_element_10() = 0;
  virtual void reserved_element_11() = 0;

protected:
  /// See axmInPlace.
  explicit axmElement(axmInPlace) noexcept {}
};
