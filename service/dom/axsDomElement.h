#pragma once

#include "axsDomNode.h"
#include "axsElement.h"

#include <axmElement.h>

/// An element as its interface.
class axsDomElement final : public axsDomNode<axmElement, axsElement>
{
public:
  explicit axsDomElement(axsName const& name) noexcept : axmNode(axmInPlace()), axsDomNode(name) {}

  apString getNodeName() const override;
  std::shared_ptr<axmNode> getFirstChild() override;
  std::shared_ptr<axmNode> getNextSibling() override;
  bool hasAttributes() const override { return first_attribute() != nullptr; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override;

  void reserved_element_0() override;
  apString getAttribute(apString const& name) const override;
  void setAttribute(apString const& name, apString const& value) override;
  void removeAttribute(apString const& name) override;
  bool hasAttribute(apString const& name) const override;
  std::shared_ptr<axmNodeList> selectNodes(apString const& xpath) override;
  std::shared_ptr<axmNode> selectSingleNode(apString const& xpath) override;
  void reserved_element_7() override;
  void reserved_element_8() override;
  void reserved_element_9() override;
  void reserved_element_10() override;
  void reserved_element_11() override;

  using axmNode::get_attribute;
  using axmNode::set_attribute;

  /// The same as in the interface, but false where the document is shared.
  bool set_attribute(apString const& name, apString const& value) override;

  /// The same as in the interface, without the way over map and attribute node.
  bool get_attribute(apString const& name, apString& value) const override;
};
