#pragma once

#include "xml2Tree.h"

#include <axmDocument.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axmNode.h>
#include <axmNodeList.h>

#include <memory>

// A node of a document: keeps the whole document alive. The operations of the interfaces, once for all kinds of node.
class xml2Handle
{
public:
  xml2Handle(std::shared_ptr<xml2Tree> tree, xmlNode* node);
  virtual ~xml2Handle();

  // What stands behind a node that one of our documents made, null for one of another make.
  static xml2Handle const* of(axmNode const* node);

  // The node as what it is, and as an element whatever it is.
  std::shared_ptr<axmNode> wrap(xmlNode* wrapped) const;
  std::shared_ptr<axmElement> as_element(xmlNode* wrapped) const;
  std::shared_ptr<axmDocument> owner_document() const;

  apString value() const;
  apString text() const;
  void set_text(apString const& text) const;
  apString xml() const;

  std::shared_ptr<axmNode> insert(std::shared_ptr<axmNode> const& new_child, axmNode const* ref_child) const;
  std::shared_ptr<axmNode> replace(
    std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& old_child) const;
  std::shared_ptr<axmNode> remove(std::shared_ptr<axmNode> const& old_child) const;

  xmlNode* attribute(apString const& name) const;
  bool set_attribute(apString const& name, apString const& value) const;
  std::shared_ptr<axmNode> take_attribute(apString const& name) const;
  std::shared_ptr<axmNode> put_attribute(std::shared_ptr<axmNode> const& given) const;

  std::shared_ptr<axmNodeList> select(apString const& xpath) const;
  std::shared_ptr<axmNodeList> elements_named(apString const& name) const;

  std::shared_ptr<xml2Tree> const tree;
  xmlNode* const node;

private:
  void set_content(xmlChar const* utf8) const;
  bool is_child(axmNode const* child) const;
  bool may_hold(xml2Handle const& child, xmlNode const* replaced) const;
};

// The children of a node, as they are at every call.
class xml2ChildList : public axmNodeList
{
public:
  explicit xml2ChildList(xml2Handle const& parent);
  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

private:
  xml2Handle parent;
};

// The attributes of an element, as they are at every call.
class xml2Map : public axmNamedNodeMap
{
public:
  explicit xml2Map(xml2Handle const& element);
  int getLength() override;
  std::shared_ptr<axmNode> item(int index) override;
  std::shared_ptr<axmNode> getNamedItem(apString const& name) override;
  std::shared_ptr<axmNode> removeNamedItem(apString const& name) override;
  std::shared_ptr<axmNode> setNamedItem(std::shared_ptr<axmNode> node) override;

private:
  xml2Handle element;
};
