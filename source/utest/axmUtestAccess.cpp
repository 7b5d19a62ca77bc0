#include "axmUtestAccess.h"

#include <algorithm>
#include <cstring>

namespace
{
apString no_node()
{
  return APSTRING("(no node)");
}

int const step_limit = 100;

void add_name(apString& names, std::shared_ptr<axmNode> const& node)
{
  if (!names.empty())
    names += APSTRING(" ");
  names += axmUtestAccess::name_of(node);
}
}

apString axmUtestAccess::name_of(Node const& node)
{
  return node != nullptr ? node->getNodeName() : no_node();
}

apString axmUtestAccess::value_of(Node const& node)
{
  return node != nullptr ? node->getNodeValue() : no_node();
}

apString axmUtestAccess::text_of(Node const& node)
{
  return node != nullptr ? node->get_text() : no_node();
}

apString axmUtestAccess::xml_of(Node const& node)
{
  return node != nullptr ? node->get_xml() : no_node();
}

axmUtestAccess::Node axmUtestAccess::first_of(Node const& node)
{
  return node != nullptr ? node->getFirstChild() : nullptr;
}

axmUtestAccess::Node axmUtestAccess::last_of(Node const& node)
{
  return node != nullptr ? node->getLastChild() : nullptr;
}

axmUtestAccess::Node axmUtestAccess::next_of(Node const& node)
{
  return node != nullptr ? node->getNextSibling() : nullptr;
}

axmUtestAccess::Node axmUtestAccess::previous_of(Node const& node)
{
  return node != nullptr ? node->getPreviousSibling() : nullptr;
}

std::shared_ptr<axmNodeList> axmUtestAccess::children_of(Node const& node)
{
  return node != nullptr ? node->getChildNodes() : nullptr;
}

apString axmUtestAccess::names_in(std::shared_ptr<axmNodeList> const& list)
{
  apString names = list != nullptr ? apString() : APSTRING("(no list)");
  int const length = loop_length_of(list);
  for (int index = 0; index < length; ++index)
    add_name(names, list->at(index));
  return names;
}

apString axmUtestAccess::names_of_children(Node const& node)
{
  return names_in(children_of(node));
}

apString axmUtestAccess::names_forward(Node const& node)
{
  apString names;
  Node child = first_of(node);
  for (int step = 0; child != nullptr && step < step_limit; ++step)
  {
    add_name(names, child);
    child = child->getNextSibling();
  }
  return names;
}

apString axmUtestAccess::names_backward(Node const& node)
{
  apString names;
  Node child = last_of(node);
  for (int step = 0; child != nullptr && step < step_limit; ++step)
  {
    add_name(names, child);
    child = child->getPreviousSibling();
  }
  return names;
}

axmUtestAccess::Node axmUtestAccess::parent_of(Node const& node)
{
  return node != nullptr ? node->getParentNode() : nullptr;
}

bool axmUtestAccess::is_detached(Node const& node)
{
  return node != nullptr && node->getParentNode() == nullptr;
}

bool axmUtestAccess::same(Node const& left, Node const& right)
{
  return left != nullptr && right != nullptr && *left == *right;
}

int axmUtestAccess::length_of(std::shared_ptr<axmNodeList> const& list)
{
  return list != nullptr ? list->length() : -1;
}

int axmUtestAccess::loop_length_of(std::shared_ptr<axmNodeList> const& list)
{
  return std::min(length_of(list), step_limit);
}

int axmUtestAccess::number_of_children(Node const& node)
{
  return node != nullptr ? length_of(node->getChildNodes()) : -1;
}

std::shared_ptr<axmElement> axmUtestAccess::item_of(std::shared_ptr<axmNodeList> const& list, int index)
{
  return index < length_of(list) ? list->at(index) : nullptr;
}

std::shared_ptr<axmElement> axmUtestAccess::child_of(Node const& node, int index)
{
  return node != nullptr ? item_of(node->getChildNodes(), index) : nullptr;
}

std::shared_ptr<axmElement> axmUtestAccess::created(std::shared_ptr<axmDocument> const& document, apString const& name)
{
  return document != nullptr ? document->createElement(name) : nullptr;
}

axmUtestAccess::Node axmUtestAccess::detached_attribute(
  std::shared_ptr<axmDocument> const& document, apString const& name, apString const& value)
{
  auto const element = created(document, APSTRING("Scratch"));
  if (element == nullptr)
    return nullptr;
  element->setAttribute(name, value);
  auto const map = element->getAttributes();
  return map != nullptr ? map->removeNamedItem(name) : nullptr;
}

axmUtestAccess::Node axmUtestAccess::append(Node const& parent, Node const& child)
{
  return parent != nullptr && child != nullptr ? parent->appendChild(child) : nullptr;
}

axmUtestAccess::Node axmUtestAccess::insert(Node const& parent, Node const& child, Node const& before)
{
  return parent != nullptr && child != nullptr ? parent->insertBefore(child, before) : nullptr;
}

axmUtestAccess::Node axmUtestAccess::replace(Node const& parent, Node const& child, Node const& old_child)
{
  bool const all_there = parent != nullptr && child != nullptr && old_child != nullptr;
  return all_there ? parent->replaceChild(child, old_child) : nullptr;
}

axmUtestAccess::Node axmUtestAccess::remove(Node const& parent, Node const& child)
{
  return parent != nullptr && child != nullptr ? parent->removeChild(child) : nullptr;
}

void axmUtestAccess::set_text(Node const& node, apString const& text)
{
  if (node != nullptr)
    node->set_text(text);
}

std::shared_ptr<axmDocument> axmUtestAccess::load(axmDocumentFactory const& factory, char const* text)
{
  axmParseError error;
  return factory.loadDocument(bytes_of(text), axmLoadOptions(axmValidateNone), error);
}

std::shared_ptr<axmElement> axmUtestAccess::load_root(axmDocumentFactory const& factory, char const* text)
{
  return root_of(load(factory, text));
}

std::shared_ptr<axmElement> axmUtestAccess::root_of(std::shared_ptr<axmDocument> const& document)
{
  return document != nullptr ? document->getDocumentElement() : nullptr;
}

apString axmUtestAccess::attribute_of(std::shared_ptr<axmElement> const& element, apString const& name)
{
  return element != nullptr ? element->getAttribute(name) : no_node();
}

std::shared_ptr<axmNamedNodeMap> axmUtestAccess::map_of(std::shared_ptr<axmElement> const& element)
{
  return element != nullptr ? element->getAttributes() : nullptr;
}

apByteArray axmUtestAccess::bytes_of(char const* text)
{
  return apByteArray(text, std::strlen(text));
}
