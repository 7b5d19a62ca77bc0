#include "xml2Tree.h"

#include <libxml/parser.h>

#include <libxml/chvalid.h>

#include <cstring>
#include <string_view>

namespace
{
// XML 1.0, 2.2, [2] Char.
bool is_storable(xmlChar const* text)
{
  while (text != nullptr && *text != 0)
  {
    int length = 4;
    int const character = xmlGetUTF8Char(text, &length);
    if (character < 0 || !xmlIsCharQ(character))
      return false;
    text += length;
  }
  return true;
}

// Whether a comment or instruction holds what would end it.
bool ends_early(xmlNode const& node)
{
  std::string_view const text = reinterpret_cast<char const*>(node.content);
  if (node.type == XML_COMMENT_NODE)
    return text.find("--") != std::string_view::npos || (!text.empty() && text.back() == '-');
  return node.type == XML_PI_NODE && text.find("?>") != std::string_view::npos;
}
}

xml2Tree::xml2Tree(xmlDoc* document) : doc(document) {}

xml2Tree::~xml2Tree()
{
  for (xmlNode* const node : loose_nodes)
    if (node->type == XML_ATTRIBUTE_NODE)
      xmlFreeProp(reinterpret_cast<xmlAttr*>(node));
    else
      xmlFreeNode(node);
  xmlFreeDoc(doc);
}

void xml2Tree::keep(xmlNode* loose)
{
  loose_nodes.insert(loose);
}

void xml2Tree::detach(xmlNode* node)
{
  xmlUnlinkNode(node);
  keep(node);
}

void xml2Tree::link(xmlNode* parent, xmlNode* node, xmlNode* next)
{
  // Linked directly, a text would be merged with its neighbour and freed.
  xmlNode* const place = xmlNewDocComment(doc, nullptr);
  if (next != nullptr)
    xmlAddPrevSibling(next, place);
  else
    xmlAddChild(parent, place);
  xmlReplaceNode(place, node);
  xmlFreeNode(place);
  loose_nodes.erase(node);
}

void xml2Tree::link_attribute(xmlNode* element, xmlNode* attribute)
{
  xmlAddChild(element, attribute);
  loose_nodes.erase(attribute);
}

void xml2Tree::drop_white_space()
{
  xmlNode* following = nullptr;
  for (xmlNode* node = top(); node != nullptr; node = following)
  {
    following = next_in_document(node, top());
    if (node->type != XML_TEXT_NODE || !xmlIsBlankNode(node) ||
        std::strcmp(reinterpret_cast<char const*>(node->content), " ") == 0)
      continue;
    xmlUnlinkNode(node);
    xmlFreeNode(node);
  }
}

bool xml2Tree::can_be_written(xmlNode* top) const
{
  if (top->type == XML_DOCUMENT_NODE && xmlDocGetRootElement(doc) == nullptr)
    return false;
  for (xmlNode* node = top; node != nullptr; node = next_in_document(node, top))
  {
    xmlAttr const* attribute = node->type == XML_ELEMENT_NODE ? node->properties : nullptr;
    for (; attribute != nullptr; attribute = attribute->next)
      if (attribute->children != nullptr && !is_storable(attribute->children->content))
        return false;
    bool const has_content = node->type != XML_ELEMENT_NODE && node->type != XML_ATTRIBUTE_NODE &&
                             node->type != XML_DOCUMENT_NODE && node->type != XML_DTD_NODE && node->content != nullptr;
    if (has_content && (!is_storable(node->content) || ends_early(*node)))
      return false;
  }
  return true;
}

xmlNode* xml2Tree::next_in_document(xmlNode* node, xmlNode* top)
{
  if (node->type != XML_DTD_NODE && node->children != nullptr)
    return node->children;
  while (node != top && node->next == nullptr)
    node = node->parent;
  return node == top ? nullptr : node->next;
}

apString xml2_text(xmlChar const* utf8)
{
  return apString(reinterpret_cast<char const*>(utf8));
}

apString xml2_owned_text(xmlChar* utf8)
{
  apString const text = xml2_text(utf8);
  xmlFree(utf8);
  return text;
}

apString xml2_name(xmlNode const& node)
{
  switch (node.type)
  {
  case XML_ELEMENT_NODE:
  case XML_ATTRIBUTE_NODE:
    if (node.ns != nullptr && node.ns->prefix != nullptr)
      return xml2_text(node.ns->prefix) + APSTRING(":") + xml2_text(node.name);
    return xml2_text(node.name);
  case XML_TEXT_NODE:
    return APSTRING("#text");
  case XML_CDATA_SECTION_NODE:
    return APSTRING("#cdata-section");
  case XML_COMMENT_NODE:
    return APSTRING("#comment");
  case XML_DOCUMENT_NODE:
    return APSTRING("#document");
  default:
    return xml2_text(node.name);
  }
}

bool xml2_is_name(apString const& text)
{
  // The library's own test knows the names of earlier editions only, its parser those of the fifth.
  utString const tag = (APSTRING("<") + text + APSTRING("/>")).to_utf8();
  xmlDoc* const document = xmlReadMemory(tag.c_str(), tag.length(), nullptr, "UTF-8",
    XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
  bool const is_name = document != nullptr && xml2_name(*xmlDocGetRootElement(document)) == text;
  xmlFreeDoc(document);
  return is_name;
}
