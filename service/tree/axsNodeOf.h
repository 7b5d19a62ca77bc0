#pragma once

#include "axsNode.h"
#include "axsTree.h"

#include <axmNamedNodeMap.h>
#include <axmNodeList.h>

#include <typeinfo>

/// The operations of axmNode, the same for every kind of node but for those that only elements have another answer to:
/// what is derived from this is a node of the tree and implements `Interface`.
template <class Interface, class Record>
class axsNodeOf : public Interface, public Record
{
public:
  apString getNodeName() const override { return axsTree::node_name(*this); }
  apString getNodeValue() const override { return apString::from_utf8(this->value()); }
  std::shared_ptr<axmNode> getParentNode() override { return axsTree::handle(this->parent()); }
  std::shared_ptr<axmNodeList> getChildNodes() override { return axsTree::children(*this); }
  std::shared_ptr<axmNode> getFirstChild() override { return axsTree::handle(this->first_child()); }
  std::shared_ptr<axmNode> getLastChild() override { return axsTree::handle(this->last_child()); }
  std::shared_ptr<axmNode> getPreviousSibling() override { return axsTree::handle(this->previous_sibling()); }
  std::shared_ptr<axmNode> getNextSibling() override { return axsTree::handle(this->next_sibling()); }
  std::shared_ptr<axmDocument> getOwnerDocument() override { return axsTree::owner_document(*this); }

  std::shared_ptr<axmNode> insertBefore(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child) override
  {
    return axsTree::insert_before(*this, new_child, ref_child);
  }

  std::shared_ptr<axmNode> replaceChild(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child) override
  {
    return axsTree::replace_child(*this, new_child, old_child);
  }

  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode> old_child) override
  {
    return axsTree::remove_child(*this, old_child);
  }

  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode> new_child) override
  {
    return axsTree::insert_before(*this, new_child, nullptr);
  }

  bool hasChildNodes() const override { return this->first_child() != nullptr; }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return false; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override { return nullptr; }
  bool operator==(axmNode const& other) const override { return axsNode::of(other) == this; }
  apString get_text() const override { return axsTree::text(*this); }
  void set_text(apString const& text) override { axsTree::set_text(*this, text); }
  apString get_xml() const override { return axsTree::xml(*this); }

protected:
  using Record::Record;
};
