#pragma once

#include "axmNode.h"

/// An element (DOM Core, interface Element). Interface; see axmNode for ownership, threads and order of operations.
class AXM_API axmElement : public virtual axmNode
{
public:
  axmElement();
  ~axmElement() override;

  /// Reserved: keeps its place in the order; never called.
  virtual void reserved_element_0() = 0;

  /// The value of the attribute `name`, exactly as set; empty when it is absent, which hasAttribute() tells apart.
  virtual apString getAttribute(apString const& name) const = 0;

  /// Creates the attribute `name` or overwrites its value, which may be empty.
  virtual void setAttribute(apString const& name, apString const& value) = 0;

  /// Takes the attribute `name` away, if it is there.
  virtual void removeAttribute(apString const& name) = 0;

  virtual bool hasAttribute(apString const& name) const = 0;

  /// The nodes that the XPath expression `xpath` selects with this element as its context, in document order
  /// (XML Path Language 1.0). Never an empty pointer: where nothing matches, an empty list.
  virtual std::shared_ptr<axmNodeList> selectNodes(apString const& xpath) = 0;

  /// The first node that selectNodes() would give, an empty pointer when nothing matches.
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
