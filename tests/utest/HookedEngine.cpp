#include "Hooks.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmSaveObstacles.h>
#include <axmTextNode.h>

#include <utility>

Node Hooks::make_text(Document const& document, apString const& data)
{
  return document->createTextNode(data);
}

Node Hooks::make_comment(Document const& document, apString const& data)
{
  return document->createComment(data);
}

apString Hooks::obstacle_of(Factory const& factory, Document const& document)
{
  return std::dynamic_pointer_cast<axmSaveObstacles>(factory)->obstacle(*document);
}

apString Hooks::data_of(Node const& node)
{
  return dynamic_cast<axmCharacterData const&>(*node).getData();
}

namespace
{
using Shared = std::shared_ptr<Hooks const>;

// What stands behind a node of a hooked engine.
class Behind
{
public:
  Behind(Shared given_hooks, Node given_node) : hooks(std::move(given_hooks)), node(std::move(given_node)) {}
  virtual ~Behind() = default;

  static Node of(Node const& hooked)
  {
    auto const behind = std::dynamic_pointer_cast<Behind>(hooked);
    return behind != nullptr ? behind->node : hooked;
  }

  Shared const hooks;
  Node const node;
};

Node hooked(Shared const& hooks, Node const& node);
Element hooked_element(Shared const& hooks, Element const& element);
Document hooked_document(Shared const& hooks, Document const& document);
List hooked_list(Shared const& hooks, List const& list);
Map hooked_map(Shared const& hooks, Map const& map);

template <class Interface>
class HookedNode : public Interface, public Behind
{
public:
  using Behind::Behind;

  apString getNodeName() const override { return hooks->node_name(node); }
  apString getNodeValue() const override { return hooks->node_value(node); }
  Node getParentNode() override { return hooked(hooks, hooks->parent(node)); }
  List getChildNodes() override { return hooked_list(hooks, hooks->children(node)); }
  Node getFirstChild() override { return hooked(hooks, hooks->first(node)); }
  Node getLastChild() override { return hooked(hooks, hooks->last(node)); }
  Node getPreviousSibling() override { return hooked(hooks, hooks->previous(node)); }
  Node getNextSibling() override { return hooked(hooks, hooks->next(node)); }
  Document getOwnerDocument() override { return hooked_document(hooks, hooks->owner(node)); }
  Node insertBefore(Node child, Node before) override
  {
    return hooked(hooks, hooks->insert(node, of(child), of(before)));
  }
  Node replaceChild(Node child, Node old) override { return hooked(hooks, hooks->replace(node, of(child), of(old))); }
  Node removeChild(Node child) override { return hooked(hooks, hooks->remove(node, of(child))); }
  Node appendChild(Node child) override { return hooked(hooks, hooks->append(node, of(child))); }
  bool hasChildNodes() const override { return hooks->has_children(node); }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return hooks->has_attributes(node); }
  Map getAttributes() override { return hooked_map(hooks, hooks->attributes(node)); }
  bool operator==(axmNode const& other) const override
  {
    auto const* const behind = dynamic_cast<Behind const*>(&other);
    return behind != nullptr && hooks->equal(this, &other, node, behind->node);
  }
  apString get_text() const override { return hooks->node_text(node); }
  void set_text(apString const& text) override { hooks->set_text(node, text); }
  apString get_xml() const override { return hooks->xml(node); }

  bool get_attribute(apString const& name, bool& value) const override { return hooks->get_bool(node, name, value); }
  bool get_attribute(apString const& name, apString& value) const override
  {
    return hooks->get_string(node, name, value);
  }
  bool get_attribute(apString const& name, double& value) const override
  {
    return hooks->get_double(node, name, value);
  }
  bool get_attribute(apString const& name, int& value) const override { return hooks->get_int(node, name, value); }
  bool set_attribute(apString const& name, bool value) override { return hooks->set_bool(node, name, value); }
  bool set_attribute(apString const& name, apString const& value) override
  {
    return hooks->set_string(node, name, value);
  }
  bool set_attribute(apString const& name, double value) override { return hooks->set_double(node, name, value); }
  bool set_attribute(apString const& name, int value) override { return hooks->set_int(node, name, value); }
  bool set_attribute(apString const& name, unsigned int value) override
  {
    return hooks->set_unsigned(node, name, value);
  }
  bool get_attribute_locale(apString const& name, double& value) const override
  {
    return hooks->get_locale(node, name, value);
  }
  bool set_attribute_locale(apString const& name, double value) override
  {
    return hooks->set_locale(node, name, value);
  }
};

class HookedElement : public HookedNode<axmElement>
{
public:
  using HookedNode::HookedNode;

  void reserved_element_0() override {}
  apString getAttribute(apString const& name) const override { return hooks->get_attribute(element(), name); }
  void setAttribute(apString const& name, apString const& value) override
  {
    hooks->set_attribute(element(), name, value);
  }
  void removeAttribute(apString const& name) override { hooks->remove_attribute(element(), name); }
  bool hasAttribute(apString const& name) const override { return hooks->has_attribute(element(), name); }
  List selectNodes(apString const& xpath) override { return hooked_list(hooks, hooks->select(element(), xpath)); }
  Node selectSingleNode(apString const& xpath) override
  {
    return hooked(hooks, hooks->select_single(element(), xpath));
  }
  void reserved_element_7() override {}
  void reserved_element_8() override {}
  void reserved_element_9() override {}
  void reserved_element_10() override {}
  void reserved_element_11() override {}

private:
  Element element() const { return std::dynamic_pointer_cast<axmElement>(node); }
};

template <class Interface>
class HookedCharacterData : public HookedNode<Interface>
{
public:
  using HookedNode<Interface>::HookedNode;
  apString getData() const override { return this->hooks->character_data(this->node); }
};

class HookedProcessingInstruction : public HookedNode<axmProcessingInstruction>
{
public:
  using HookedNode::HookedNode;
  void reserved_processing_instruction_33() override {}
  void reserved_processing_instruction_34() override {}
};

class HookedDocument : public HookedNode<axmDocument>
{
public:
  using HookedNode::HookedNode;

  Element createElement(apString const& name) override
  {
    return std::dynamic_pointer_cast<axmElement>(hooked(hooks, hooks->create_element(document(), name)));
  }
  std::shared_ptr<axmTextNode> createTextNode(apString const& data) override
  {
    return std::dynamic_pointer_cast<axmTextNode>(hooked(hooks, hooks->create_text(document(), data)));
  }
  std::shared_ptr<axmCommentNode> createComment(apString const& data) override
  {
    return std::dynamic_pointer_cast<axmCommentNode>(hooked(hooks, hooks->create_comment(document(), data)));
  }
  Element getDocumentElement() override { return hooked_element(hooks, hooks->root(document())); }
  apString getDocumentURI() const override { return hooks->uri(document()); }
  void reserved_document_5() override {}
  List getElementsByTagName(apString const& name) override
  {
    return hooked_list(hooks, hooks->by_name(document(), name));
  }
  void reserved_document_7() override {}

private:
  Document document() const { return std::dynamic_pointer_cast<axmDocument>(node); }
};

class HookedList : public axmNodeList
{
public:
  HookedList(Shared given_hooks, List given_list) : hooks(std::move(given_hooks)), list(std::move(given_list)) {}

  Element at(int index) override { return hooked_element(hooks, list->at(index)); }
  int length() const override { return list->length(); }
  Element operator()() override { return hooked_element(hooks, (*list)()); }
  bool isEmpty() const override { return list->isEmpty(); }
  bool operator++() override { return ++*list; }
  void reset() override { list->reset(); }
  Element next_node() override { return hooked_element(hooks, list->next_node()); }
  bool invalid() const override { return list->invalid(); }

private:
  Shared hooks;
  List list;
};

class HookedMap : public axmNamedNodeMap
{
public:
  HookedMap(Shared given_hooks, Map given_map) : hooks(std::move(given_hooks)), map(std::move(given_map)) {}

  int getLength() override { return map->getLength(); }
  Node item(int index) override { return hooked(hooks, map->item(index)); }
  Node getNamedItem(apString const& name) override { return hooked(hooks, map->getNamedItem(name)); }
  Node removeNamedItem(apString const& name) override { return hooked(hooks, map->removeNamedItem(name)); }
  Node setNamedItem(Node node) override { return hooked(hooks, map->setNamedItem(Behind::of(node))); }

private:
  Shared hooks;
  Map map;
};

class HookedFactory : public axmDocumentFactory, public axmSaveObstacles
{
public:
  HookedFactory(Shared given_hooks, Factory given_engine)
    : hooks(std::move(given_hooks)),
      engine(std::move(given_engine))
  {
  }
  ~HookedFactory() override = default;

  Document createDocument(apString const& root_name) const override
  {
    return hooked_document(hooks, hooks->create(engine, root_name));
  }
  Document loadDocument(apPath const& path, axmLoadOptions const& options, axmParseError& error) const override
  {
    return hooked_document(hooks, hooks->load_file(engine, path, options, error));
  }
  Document loadDocument(apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const override
  {
    return hooked_document(hooks, hooks->load_bytes(engine, data, options, error));
  }
  bool saveDocument(Document document, apByteArray& output) override
  {
    return hooks->save_bytes(engine, behind(document), output);
  }
  bool saveDocument(Document document, apPath const& path) override
  {
    return hooks->save_file(engine, behind(document), path);
  }

  apString obstacle(axmDocument const& document) const override
  {
    auto const& hooked = dynamic_cast<Behind const&>(document);
    return hooks->obstacle(engine, std::dynamic_pointer_cast<axmDocument>(hooked.node));
  }

private:
  static Document behind(Document const& document)
  {
    return std::dynamic_pointer_cast<axmDocument>(Behind::of(document));
  }

  Shared hooks;
  Factory engine;
};

Node hooked(Shared const& hooks, Node const& node)
{
  if (node == nullptr)
    return nullptr;
  if (std::dynamic_pointer_cast<axmElement>(node) != nullptr)
    return std::make_shared<HookedElement>(hooks, node);
  if (std::dynamic_pointer_cast<axmDocument>(node) != nullptr)
    return std::make_shared<HookedDocument>(hooks, node);
  if (std::dynamic_pointer_cast<axmTextNode>(node) != nullptr)
    return std::make_shared<HookedCharacterData<axmTextNode>>(hooks, node);
  if (std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr)
    return std::make_shared<HookedCharacterData<axmCommentNode>>(hooks, node);
  if (std::dynamic_pointer_cast<axmProcessingInstruction>(node) != nullptr)
    return std::make_shared<HookedProcessingInstruction>(hooks, node);
  return std::make_shared<HookedNode<axmNode>>(hooks, node);
}

Element hooked_element(Shared const& hooks, Element const& element)
{
  return element != nullptr ? std::make_shared<HookedElement>(hooks, element) : nullptr;
}

Document hooked_document(Shared const& hooks, Document const& document)
{
  return document != nullptr ? std::make_shared<HookedDocument>(hooks, document) : nullptr;
}

List hooked_list(Shared const& hooks, List const& list)
{
  List const handed_out = list != nullptr ? hooks->list(list) : nullptr;
  return handed_out != nullptr ? std::make_shared<HookedList>(hooks, handed_out) : nullptr;
}

Map hooked_map(Shared const& hooks, Map const& map)
{
  Map const handed_out = map != nullptr ? hooks->map(map) : nullptr;
  return handed_out != nullptr ? std::make_shared<HookedMap>(hooks, handed_out) : nullptr;
}
}

Factory hooked_engine(Factory const& engine, Hooks const& hooks)
{
  return std::make_shared<HookedFactory>(std::make_shared<Hooks const>(hooks), engine);
}
