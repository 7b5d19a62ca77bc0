#pragma once

#include "axsDomOperations.h"

#include <axmNamedNodeMap.h>
#include <axmNodeList.h>

#include <utility>

/// The operations of axmNode over a record of the tree, the same for every kind of node but for those that only elements
/// have another answer to: what is derived from this is such a record and implements `Interface`. It adds no data.
template <class Interface, class Record>
class axsDomNode : public Interface, public Record
{
public:
  apString getNodeName() const override { return apString::from_utf8(this->node_name()); }
  apString getNodeValue() const override { return apString::from_utf8(this->value()); }
  std::shared_ptr<axmNode> getParentNode() override { return axsDomOperations::parent(*this); }
  std::shared_ptr<axmNodeList> getChildNodes() override { return axsDomOperations::children(*this); }
  std::shared_ptr<axmNode> getFirstChild() override { return axsDomOperations::first_child(*this); }
  std::shared_ptr<axmNode> getLastChild() override { return axsDomOperations::last_child(*this); }
  std::shared_ptr<axmNode> getPreviousSibling() override { return axsDomOperations::previous_sibling(*this); }
  std::shared_ptr<axmNode> getNextSibling() override { return axsDomOperations::next_sibling(*this); }
  std::shared_ptr<axmDocument> getOwnerDocument() override { return axsDomOperations::owner_document(*this); }

  std::shared_ptr<axmNode> insertBefore(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child) override
  {
    return axsDomOperations::insert_before(*this, new_child, ref_child);
  }

  std::shared_ptr<axmNode> replaceChild(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child) override
  {
    return axsDomOperations::replace_child(*this, new_child, old_child);
  }

  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode> old_child) override
  {
    return axsDomOperations::remove_child(*this, old_child);
  }

  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode> new_child) override
  {
    return axsDomOperations::insert_before(*this, new_child, nullptr);
  }

  bool hasChildNodes() const override { return this->first_child() != nullptr; }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return false; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override { return nullptr; }
  bool operator==(axmNode const& other) const override { return axsDomOperations::is_node(other, *this); }
  apString get_text() const override { return axsDomOperations::text(*this); }
  void set_text(apString const& text) override { axsDomOperations::set_text(*this, text); }
  apString get_xml() const override { return axsDomOperations::xml(*this); }

protected:
  template <class... Arguments>
  explicit axsDomNode(Arguments&&... arguments) noexcept
    : Interface(axmInPlace()),
      Record(std::forward<Arguments>(arguments)...)
  {
  }
};
