#include "Contender.h"

#include <pugixml.hpp>

#include <cstring>

namespace
{
// One pass over the tree, in which a name is first compared with the one that is expected: faster than a search from the
// first child or attribute for each name.
void visit(pugi::xml_node node, Element const& element, Digest& digest)
{
  if (!element.attributes.empty())
  {
    std::size_t next = 0;
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
    {
      char const* const name = attribute.name();
      std::size_t const found = position_of(
        element.attributes, next, [&](std::string const& wanted) { return std::strcmp(wanted.c_str(), name) == 0; });
      if (found == element.attributes.size())
        continue;
      digest.add(element.field + static_cast<int>(found), attribute.value());
      next = found + 1;
    }
  }
  if (element.has_text)
    digest.add_text(element.text_field(), node.child_value());
  if (element.children.empty())
    return;
  std::size_t next = 0;
  for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling())
  {
    char const* const name = child.name();
    std::size_t const found = position_of(
      element.children, next, [&](Element const& wanted) { return std::strcmp(wanted.name.c_str(), name) == 0; });
    if (found == element.children.size())
      continue;
    visit(child, element.children[found], digest);
    next = found + element.children[found].is_single;
  }
}

bool extract(std::string const& file, Task const& task, Digest& digest, unsigned flags)
{
  pugi::xml_document document;
  if (!document.load_file(file.c_str(), flags))
    return false;
  pugi::xml_node const root = document.child(task.root.name.c_str());
  if (!root)
    return false;
  visit(root, task.root, digest);
  return true;
}
}

bool extract_with_pugixml(std::string const& file, Task const& task, Digest& digest)
{
  return extract(file, task, digest, pugi::parse_default);
}

bool extract_with_pugixml_minimal(std::string const& file, Task const& task, Digest& digest)
{
  return extract(file, task, digest, pugi::parse_minimal);
}
