#pragma once

#include "xml2Handle.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

// A handle with the interface that fits its node.
template <class Interface>
class xml2Node : public Interface, public xml2Handle
{
public:
  using xml2Handle::xml2Handle;

  apString getNodeName() const override { return xml2_name(*node); }
  apString getNodeValue() const override { return value(); }
  std::shared_ptr<axmNode> getParentNode() override
  {
    return node->type == XML_ATTRIBUTE_NODE ? nullptr : wrap(node->parent);
  }
  std::shared_ptr<axmNodeList> getChildNodes() override { return std::make_shared<xml2ChildList>(*this); }
  std::shared_ptr<axmNode> getFirstChild() override { return wrap(node->children); }
  std::shared_ptr<axmNode> getLastChild() override { return wrap(node->last); }
  // The attributes of an element are chained as children are, but are nobody's siblings.
  std::shared_ptr<axmNode> getPreviousSibling() override
  {
    return node->type == XML_ATTRIBUTE_NODE ? nullptr : wrap(node->prev);
  }
  std::shared_ptr<axmNode> getNextSibling() override
  {
    return node->type == XML_ATTRIBUTE_NODE ? nullptr : wrap(node->next);
  }
  std::shared_ptr<axmDocument> getOwnerDocument() override { return owner_document(); }
  std::shared_ptr<axmNode> insertBefore(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child) override
  {
    return insert(new_child, ref_child.get());
  }
  std::shared_ptr<axmNode> replaceChild(std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child) override
  {
    return replace(new_child, old_child);
  }
  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode> old_child) override { return remove(old_child); }
  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode> new_child) override
  {
    return insert(new_child, nullptr);
  }
  bool hasChildNodes() const override { return node->children != nullptr; }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return node->type == XML_ELEMENT_NODE && node->properties != nullptr; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override
  {
    return node->type == XML_ELEMENT_NODE ? std::make_shared<xml2Map>(*this) : nullptr;
  }
  bool operator==(axmNode const& other) const override
  {
    xml2Handle const* const handle = of(&other);
    return handle != nullptr && handle->node == node;
  }
  apString get_text() const override { return text(); }
  void set_text(apString const& text) override { xml2Handle::set_text(text); }
  apString get_xml() const override { return tree->can_be_written(node) ? xml() : apString(); }
};

class xml2Element : public xml2Node<axmElement>
{
public:
  using axmNode::set_attribute;
  using xml2Node::xml2Node;

  // In a list a node that is no element stands as one, and has no attributes to set.
  bool set_attribute(apString const& name, apString const& value) override
  {
    return xml2Handle::set_attribute(name, value);
  }
  void reserved_element_0() override {}
  apString getAttribute(apString const& name) const override
  {
    xmlNode* const found = attribute(name);
    return found != nullptr ? xml2_owned_text(xmlNodeGetContent(found)) : apString();
  }
  void setAttribute(apString const& name, apString const& value) override { xml2Handle::set_attribute(name, value); }
  void removeAttribute(apString const& name) override { take_attribute(name); }
  bool hasAttribute(apString const& name) const override { return attribute(name) != nullptr; }
  std::shared_ptr<axmNodeList> selectNodes(apString const& xpath) override { return select(xpath); }
  std::shared_ptr<axmNode> selectSingleNode(apString const& xpath) override
  {
    std::shared_ptr<axmNodeList> const found = select(xpath);
    return found->isEmpty() ? nullptr : wrap(of(found->at(0).get())->node);
  }
  void reserved_element_7() override {}
  void reserved_element_8() override {}
  void reserved_element_9() override {}
  void reserved_element_10() override {}
  void reserved_element_11() override {}
};

template <class Interface>
class xml2CharacterData : public xml2Node<Interface>
{
public:
  using xml2Node<Interface>::xml2Node;
  apString getData() const override { return this->value(); }
};

class xml2ProcessingInstruction : public xml2Node<axmProcessingInstruction>
{
public:
  using xml2Node::xml2Node;
  void reserved_processing_instruction_33() override {}
  void reserved_processing_instruction_34() override {}
};

class xml2Document : public xml2Node<axmDocument>
{
public:
  using xml2Node::xml2Node;

  std::shared_ptr<axmElement> createElement(apString const& name) override
  {
    if (!xml2_is_name(name))
      return nullptr;
    return made<xml2Element>(
      xml2_with(name, [&](xmlChar const* text) { return xmlNewDocNode(tree->document(), nullptr, text, nullptr); }));
  }
  std::shared_ptr<axmTextNode> createTextNode(apString const& data) override
  {
    return made<xml2CharacterData<axmTextNode>>(
      xml2_with(data, [&](xmlChar const* text) { return xmlNewDocText(tree->document(), text); }));
  }
  std::shared_ptr<axmCommentNode> createComment(apString const& data) override
  {
    return made<xml2CharacterData<axmCommentNode>>(
      xml2_with(data, [&](xmlChar const* text) { return xmlNewDocComment(tree->document(), text); }));
  }
  std::shared_ptr<axmElement> getDocumentElement() override
  {
    return as_element(xmlDocGetRootElement(tree->document()));
  }
  apString getDocumentURI() const override { return xml2_text(tree->document()->URL); }
  void reserved_document_5() override {}
  std::shared_ptr<axmNodeList> getElementsByTagName(apString const& name) override { return elements_named(name); }
  void reserved_document_7() override {}

private:
  template <class Node>
  std::shared_ptr<Node> made(xmlNode* created) const
  {
    if (created == nullptr)
      return nullptr;
    tree->keep(created);
    return std::make_shared<Node>(tree, created);
  }
};
