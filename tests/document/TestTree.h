#pragma once

#include <axmCommentNode.h>
#include <axmDocument.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axmNode.h>
#include <axmNodeList.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// A node of the kind `Interface` that is in no tree: every operation answers that there is nothing.
template <class Interface>
class TestNode : public Interface
{
public:
  apString getNodeName() const override { return apString(); }
  apString getNodeValue() const override { return apString(); }
  std::shared_ptr<axmNode> getParentNode() override { return nullptr; }
  std::shared_ptr<axmNodeList> getChildNodes() override { return nullptr; }
  std::shared_ptr<axmNode> getFirstChild() override { return nullptr; }
  std::shared_ptr<axmNode> getLastChild() override { return nullptr; }
  std::shared_ptr<axmNode> getPreviousSibling() override { return nullptr; }
  std::shared_ptr<axmNode> getNextSibling() override { return nullptr; }
  std::shared_ptr<axmDocument> getOwnerDocument() override { return nullptr; }
  std::shared_ptr<axmNode> insertBefore(std::shared_ptr<axmNode>, std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> replaceChild(std::shared_ptr<axmNode>, std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode>) override { return nullptr; }
  bool hasChildNodes() const override { return false; }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return false; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override { return nullptr; }
  bool operator==(axmNode const& other) const override { return this == &other; }
  apString get_text() const override { return apString(); }
  void set_text(apString const&) override {}
  apString get_xml() const override { return apString(); }
};

class TestAttribute : public TestNode<axmNode>
{
public:
  TestAttribute(apString const& name, apString const& value) : named(name), valued(value) {}

  apString getNodeName() const override { return named; }
  apString getNodeValue() const override { return valued; }

private:
  apString named;
  apString valued;
};

class TestMap : public axmNamedNodeMap
{
public:
  int getLength() override { return static_cast<int>(attributes.size()); }

  std::shared_ptr<axmNode> item(int index) override { return attributes[static_cast<std::size_t>(index)]; }

  std::shared_ptr<axmNode> getNamedItem(apString const& name) override
  {
    for (std::shared_ptr<axmNode> const& attribute : attributes)
      if (attribute->getNodeName() == name)
        return attribute;
    return nullptr;
  }

  std::shared_ptr<axmNode> removeNamedItem(apString const& name) override
  {
    for (auto at = attributes.begin(); at != attributes.end(); ++at)
      if ((*at)->getNodeName() == name)
      {
        std::shared_ptr<axmNode> const removed = *at;
        attributes.erase(at);
        return removed;
      }
    return nullptr;
  }

  std::shared_ptr<axmNode> setNamedItem(std::shared_ptr<axmNode> node) override
  {
    std::shared_ptr<axmNode> replaced = removeNamedItem(node->getNodeName());
    attributes.push_back(node);
    return replaced;
  }

private:
  std::vector<std::shared_ptr<axmNode>> attributes;
};

class TestElement : public TestNode<axmElement>
{
public:
  bool hasAttributes() const override { return map->getLength() > 0; }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override { return map; }

  void reserved_element_0() override {}
  apString getAttribute(apString const& name) const override
  {
    return hasAttribute(name) ? map->getNamedItem(name)->getNodeValue() : apString();
  }
  void setAttribute(apString const& name, apString const& value) override
  {
    map->setNamedItem(std::make_shared<TestAttribute>(name, value));
  }
  void removeAttribute(apString const& name) override { map->removeNamedItem(name); }
  bool hasAttribute(apString const& name) const override { return map->getNamedItem(name) != nullptr; }
  std::shared_ptr<axmNodeList> selectNodes(apString const&) override { return nullptr; }
  std::shared_ptr<axmNode> selectSingleNode(apString const&) override { return nullptr; }
  void reserved_element_7() override {}
  void reserved_element_8() override {}
  void reserved_element_9() override {}
  void reserved_element_10() override {}
  void reserved_element_11() override {}

private:
  std::shared_ptr<TestMap> map = std::make_shared<TestMap>();
};

class TestText : public TestNode<axmTextNode>
{
public:
  apString getData() const override { return apString(); }
};

class TestComment : public TestNode<axmCommentNode>
{
public:
  apString getData() const override { return apString(); }
};

class TestInstruction : public TestNode<axmProcessingInstruction>
{
public:
  void reserved_processing_instruction_33() override {}
  void reserved_processing_instruction_34() override {}
};

class TestDocument : public TestNode<axmDocument>
{
public:
  std::shared_ptr<axmElement> createElement(apString const&) override { return nullptr; }
  std::shared_ptr<axmTextNode> createTextNode(apString const&) override { return nullptr; }
  std::shared_ptr<axmCommentNode> createComment(apString const&) override { return nullptr; }
  std::shared_ptr<axmElement> getDocumentElement() override { return nullptr; }
  apString getDocumentURI() const override { return apString(); }
  void reserved_document_5() override {}
  std::shared_ptr<axmNodeList> getElementsByTagName(apString const&) override { return nullptr; }
  void reserved_document_7() override {}
};

/// A list of the elements that it is given, to be changed as a test likes.
class TestList : public axmNodeList
{
public:
  explicit TestList(int count)
  {
    for (int i = 0; i < count; ++i)
      items.push_back(std::make_shared<TestElement>());
  }

  std::shared_ptr<axmElement> at(int index) override { return items[static_cast<std::size_t>(index)]; }
  int length() const override { return static_cast<int>(items.size()); }

  std::vector<std::shared_ptr<axmElement>> items;
};
