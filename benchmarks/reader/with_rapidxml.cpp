#include "Bytes.h"
#include "Contender.h"

#include <rapidxml/rapidxml.hpp>

namespace
{
using Node = rapidxml::xml_node<>;
using Attribute = rapidxml::xml_attribute<>;

// As for pugixml, with names that need not end with a NUL.
void visit(Node const& node, Element const& element, Digest& digest)
{
  if (!element.attributes.empty())
  {
    std::size_t next = 0;
    for (Attribute const* attribute = node.first_attribute(); attribute != nullptr;
         attribute = attribute->next_attribute())
    {
      std::string_view const name(attribute->name(), attribute->name_size());
      std::size_t const found =
        position_of(element.attributes, next, [&](std::string const& wanted) { return wanted == name; });
      if (found == element.attributes.size())
        continue;
      digest.add(element.field + static_cast<int>(found), {attribute->value(), attribute->value_size()});
      next = found + 1;
    }
  }
  if (element.has_text)
    digest.add_text(element.text_field(), {node.value(), node.value_size()});
  if (element.children.empty())
    return;
  std::size_t next = 0;
  for (Node const* child = node.first_node(); child != nullptr; child = child->next_sibling())
  {
    std::string_view const name(child->name(), child->name_size());
    std::size_t const found =
      position_of(element.children, next, [&](Element const& wanted) { return wanted.name == name; });
    if (found == element.children.size())
      continue;
    visit(*child, element.children[found], digest);
    next = found + element.children[found].is_single;
  }
}

template <int flags>
bool extract(std::string const& file, Task const& task, Digest& digest)
{
  Bytes bytes(file);
  try
  {
    rapidxml::xml_document<> document;
    document.parse<flags>(bytes.data());
    Node const* const root = document.first_node(task.root.name.c_str());
    if (root == nullptr)
      return false;
    visit(*root, task.root, digest);
    return true;
  }
  catch (rapidxml::parse_error const&)
  {
    return false;
  }
}
}

bool extract_with_rapidxml(std::string const& file, Task const& task, Digest& digest)
{
  return extract<rapidxml::parse_default>(file, task, digest);
}

bool extract_with_rapidxml_fastest(std::string const& file, Task const& task, Digest& digest)
{
  return extract<rapidxml::parse_fastest>(file, task, digest);
}
