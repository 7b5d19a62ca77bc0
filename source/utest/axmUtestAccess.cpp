#include "axmUtestAccess.h"

#include <axmNamedNodeMap.h>

#include <cstring>

namespace
{
apString no_node()
{
  return APSTRING("(no node)");
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

std::shared_ptr<axmDocument> axmUtestAccess::load(axmDocumentFactory const& factory, char const* text)
{
  axmParseError error;
  return factory.loadDocument(bytes_of(text), axmLoadOptions(axmValidateNone), error);
}

apByteArray axmUtestAccess::bytes_of(char const* text)
{
  return apByteArray(text, std::strlen(text));
}
