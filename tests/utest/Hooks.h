#pragma once

#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>

#include <functional>
#include <memory>

using Node = std::shared_ptr<axmNode>;
using Element = std::shared_ptr<axmElement>;
using Document = std::shared_ptr<axmDocument>;
using List = std::shared_ptr<axmNodeList>;
using Map = std::shared_ptr<axmNamedNodeMap>;
using Factory = std::shared_ptr<axmDocumentFactory>;

// What an engine that stands on another one does at each operation: from the start what the other does. A faulty engine
// is one in which one of them is another function. Nodes, lists and maps are those of the engine underneath.
struct Hooks
{
  std::function<apString(Node const&)> node_name = [](Node const& node) { return node->getNodeName(); };
  std::function<apString(Node const&)> node_value = [](Node const& node) { return node->getNodeValue(); };
  std::function<Node(Node const&)> parent = [](Node const& node) { return node->getParentNode(); };
  std::function<List(Node const&)> children = [](Node const& node) { return node->getChildNodes(); };
  std::function<Node(Node const&)> first = [](Node const& node) { return node->getFirstChild(); };
  std::function<Node(Node const&)> last = [](Node const& node) { return node->getLastChild(); };
  std::function<Node(Node const&)> previous = [](Node const& node) { return node->getPreviousSibling(); };
  std::function<Node(Node const&)> next = [](Node const& node) { return node->getNextSibling(); };
  std::function<Document(Node const&)> owner = [](Node const& node) { return node->getOwnerDocument(); };
  std::function<Node(Node const&, Node const&, Node const&)> insert =
    [](Node const& node, Node const& child, Node const& before) { return node->insertBefore(child, before); };
  std::function<Node(Node const&, Node const&, Node const&)> replace =
    [](Node const& node, Node const& child, Node const& old) { return node->replaceChild(child, old); };
  std::function<Node(Node const&, Node const&)> remove = [](Node const& node, Node const& child)
  { return node->removeChild(child); };
  std::function<Node(Node const&, Node const&)> append = [](Node const& node, Node const& child)
  { return node->appendChild(child); };
  std::function<bool(Node const&)> has_children = [](Node const& node) { return node->hasChildNodes(); };
  std::function<bool(Node const&)> has_attributes = [](Node const& node) { return node->hasAttributes(); };
  std::function<Map(Node const&)> attributes = [](Node const& node) { return node->getAttributes(); };
  // The objects compared, and what stands behind them.
  std::function<bool(axmNode const*, axmNode const*, Node const&, Node const&)> equal =
    [](axmNode const*, axmNode const*, Node const& left, Node const& right) { return *left == *right; };
  std::function<apString(Node const&)> node_text = [](Node const& node) { return node->get_text(); };
  std::function<void(Node const&, apString const&)> set_text = [](Node const& node, apString const& text)
  { node->set_text(text); };
  std::function<apString(Node const&)> xml = [](Node const& node) { return node->get_xml(); };

  std::function<bool(Node const&, apString const&, bool&)> get_bool =
    [](Node const& node, apString const& name, bool& value) { return node->get_attribute(name, value); };
  std::function<bool(Node const&, apString const&, apString&)> get_string =
    [](Node const& node, apString const& name, apString& value) { return node->get_attribute(name, value); };
  std::function<bool(Node const&, apString const&, double&)> get_double =
    [](Node const& node, apString const& name, double& value) { return node->get_attribute(name, value); };
  std::function<bool(Node const&, apString const&, int&)> get_int =
    [](Node const& node, apString const& name, int& value) { return node->get_attribute(name, value); };
  std::function<bool(Node const&, apString const&, bool)> set_bool =
    [](Node const& node, apString const& name, bool value) { return node->set_attribute(name, value); };
  std::function<bool(Node const&, apString const&, apString const&)> set_string =
    [](Node const& node, apString const& name, apString const& value) { return node->set_attribute(name, value); };
  std::function<bool(Node const&, apString const&, double)> set_double =
    [](Node const& node, apString const& name, double value) { return node->set_attribute(name, value); };
  std::function<bool(Node const&, apString const&, int)> set_int = [](Node const& node, apString const& name, int value)
  { return node->set_attribute(name, value); };
  std::function<bool(Node const&, apString const&, unsigned int)> set_unsigned =
    [](Node const& node, apString const& name, unsigned int value) { return node->set_attribute(name, value); };
  std::function<bool(Node const&, apString const&, double&)> get_locale =
    [](Node const& node, apString const& name, double& value) { return node->get_attribute_locale(name, value); };
  std::function<bool(Node const&, apString const&, double)> set_locale =
    [](Node const& node, apString const& name, double value) { return node->set_attribute_locale(name, value); };

  std::function<apString(Element const&, apString const&)> get_attribute =
    [](Element const& element, apString const& name) { return element->getAttribute(name); };
  std::function<void(Element const&, apString const&, apString const&)> set_attribute =
    [](Element const& element, apString const& name, apString const& value) { element->setAttribute(name, value); };
  std::function<void(Element const&, apString const&)> remove_attribute =
    [](Element const& element, apString const& name) { element->removeAttribute(name); };
  std::function<bool(Element const&, apString const&)> has_attribute = [](Element const& element, apString const& name)
  { return element->hasAttribute(name); };
  std::function<List(Element const&, apString const&)> select = [](Element const& element, apString const& xpath)
  { return element->selectNodes(xpath); };
  std::function<Node(Element const&, apString const&)> select_single = [](Element const& element, apString const& xpath)
  { return element->selectSingleNode(xpath); };

  std::function<Node(Document const&, apString const&)> create_element =
    [](Document const& document, apString const& name) { return document->createElement(name); };
  std::function<Node(Document const&, apString const&)> create_text = &Hooks::make_text;
  std::function<Node(Document const&, apString const&)> create_comment = &Hooks::make_comment;
  std::function<Element(Document const&)> root = [](Document const& document)
  { return document->getDocumentElement(); };
  std::function<apString(Document const&)> uri = [](Document const& document) { return document->getDocumentURI(); };
  std::function<List(Document const&, apString const&)> by_name = [](Document const& document, apString const& name)
  { return document->getElementsByTagName(name); };

  // Of a text or comment.
  std::function<apString(Node const&)> character_data = &Hooks::data_of;

  // What becomes of a list or map before it is handed out.
  std::function<List(List const&)> list = [](List const& given) { return given; };
  std::function<Map(Map const&)> map = [](Map const& given) { return given; };

  std::function<Document(Factory const&, apString const&)> create = [](Factory const& factory, apString const& name)
  { return factory->createDocument(name); };
  std::function<Document(Factory const&, apPath const&, axmLoadOptions const&, axmParseError&)> load_file =
    [](Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  { return factory->loadDocument(path, options, error); };
  std::function<Document(Factory const&, apByteArray const&, axmLoadOptions const&, axmParseError&)> load_bytes =
    [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  { return factory->loadDocument(data, options, error); };
  std::function<bool(Factory const&, Document const&, apByteArray&)> save_bytes =
    [](Factory const& factory, Document const& document, apByteArray& output)
  { return factory->saveDocument(document, output); };
  std::function<bool(Factory const&, Document const&, apPath const&)> save_file =
    [](Factory const& factory, Document const& document, apPath const& path)
  { return factory->saveDocument(document, path); };

  // Why a document is not saved.
  std::function<apString(Factory const&, Document const&)> obstacle = &Hooks::obstacle_of;

private:
  static apString obstacle_of(Factory const& factory, Document const& document);
  static Node make_text(Document const& document, apString const& data);
  static Node make_comment(Document const& document, apString const& data);
  static apString data_of(Node const& node);
};

// The engine that stands on `engine` and does what the hooks say.
Factory hooked_engine(Factory const& engine, Hooks const& hooks);
