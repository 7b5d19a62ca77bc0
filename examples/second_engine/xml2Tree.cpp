#include "xml2Tree.h"

#include <cstring>

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
