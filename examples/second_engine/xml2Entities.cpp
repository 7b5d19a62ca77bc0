#include "xml2Entities.h"

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace
{
using Names = std::vector<std::string>;

// The names of the entities that the text of an entity refers to.
Names references_in(char const* text)
{
  Names names;
  for (char const* at = text; at != nullptr && (at = std::strchr(at, '&')) != nullptr;)
  {
    char const* const end = std::strchr(at, ';');
    if (end != nullptr && at[1] != '#')
      names.emplace_back(at + 1, end);
    at = end;
  }
  return names;
}

void add_references(xmlNode const* first, Names& names)
{
  for (xmlNode const* node = first; node != nullptr; node = node->next)
    if (node->type == XML_ENTITY_REF_NODE)
      names.emplace_back(reinterpret_cast<char const*>(node->name));
}

// The next node in document order; what an entity stands for is below none.
xmlNode const* next_of(xmlNode const* node)
{
  if (node->type != XML_ENTITY_REF_NODE && node->type != XML_DTD_NODE && node->children != nullptr)
    return node->children;
  while (node->next == nullptr && node->parent != nullptr)
    node = node->parent;
  return node->next;
}

// All references in the texts and attributes of a document.
Names references_of(xmlDoc const* document)
{
  Names names;
  for (xmlNode const* node = document->children; node != nullptr; node = next_of(node))
  {
    if (node->type == XML_ENTITY_REF_NODE)
      names.emplace_back(reinterpret_cast<char const*>(node->name));
    if (node->type != XML_ELEMENT_NODE)
      continue;
    for (xmlAttr const* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
      add_references(attribute->children, names);
  }
  return names;
}
}

apString xml2_entity_fault(xmlDoc* document, axmLoadOptions const& options)
{
  std::map<std::string, Names> known;
  Names waiting = references_of(document);
  // Ends at the limit, also where entities hold each other.
  for (long long count = 0; !waiting.empty();)
  {
    std::string const name = waiting.back();
    waiting.pop_back();
    xmlEntity const* const entity = xmlGetDocEntity(document, reinterpret_cast<xmlChar const*>(name.c_str()));
    if (entity == nullptr || entity->etype == XML_INTERNAL_PREDEFINED_ENTITY)
      continue;
    if (entity->etype != XML_INTERNAL_GENERAL_ENTITY && options.disable_entity_resolution())
      return APSTRING("the document needs an external entity");
    if (++count > options.entity_expansion_limit())
      return APSTRING("more entities are expanded than the limit allows");
    auto const [found, is_new] = known.try_emplace(name);
    if (is_new)
      found->second = references_in(reinterpret_cast<char const*>(entity->content));
    waiting.insert(waiting.end(), found->second.begin(), found->second.end());
  }
  return {};
}
