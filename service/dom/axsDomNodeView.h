#pragma once

#include "axsNode.h"

#include <axmElement.h>

/// A node that is no element, handed out as one by a list: answers all node operations as the node itself and is equal
/// to it; what only elements have, attributes, it has none of and takes none. Holds the node.
class axsDomNodeView final : public axmElement
{
public:
  explicit axsDomNodeView(axsNode& node);
  ~axsDomNodeView() override;

  axsNode& node() const noexcept { return viewed; }

  apString getNodeName() const override;
  apString getNodeValue() const override;
  std::shared_ptr<axmNode> getParentNode() override;
  std::shared_ptr<axmNodeList> getChildNodes() override;
  std::shared_ptr<axmNode> getFirstChild() override;
  std::shared_ptr<axmNode> getLastChild() override;
  std::shared_ptr<axmNode> getPreviousSibling() override;
  std::shared_ptr<axmNode> getNextSibling() override;
  std::shared_ptr<axmDocument> getOwnerDocument() override;
  std::shared_ptr<axmNode> insertBefore(
    std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child) override;
  std::shared_ptr<axmNode> replaceChild(
    std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child) override;
  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode> old_child) override;
  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode> new_child) override;
  bool hasChildNodes() const override;
  void reserved_node_15() override;
  bool hasAttributes() const override;
  std::shared_ptr<axmNamedNodeMap> getAttributes() override;
  bool operator==(axmNode const& other) const override;
  using axmNode::set_attribute;
  bool set_attribute(apString const& name, apString const& value) override;
  apString get_text() const override;
  void set_text(apString const& text) override;
  apString get_xml() const override;

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

private:
  axsNode& viewed;
  // The same node, as its interface.
  std::shared_ptr<axmNode> const shown;
};
