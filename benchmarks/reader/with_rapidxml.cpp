#include "Bytes.h"
#include "Task.h"

#include <rapidxml/rapidxml.hpp>

namespace
{
using Node = rapidxml::xml_node<>;

void visit(Node const& parent, Task const& task, std::size_t depth, Digest& digest)
{
  std::string const& step = task.path[depth];
  for (Node const* node = parent.first_node(step.data(), step.size()); node != nullptr;
       node = node->next_sibling(step.data(), step.size()))
  {
    if (depth + 1 < task.path.size())
    {
      visit(*node, task, depth + 1, digest);
      continue;
    }
    for (std::string const& name : task.attributes)
    {
      auto const* const attribute = node->first_attribute(name.data(), name.size());
      digest.add(
        attribute == nullptr ? std::string_view() : std::string_view(attribute->value(), attribute->value_size()));
    }
    for (std::string const& name : task.children)
      if (Node const* const child = node->first_node(name.data(), name.size()))
        digest.add({child->value(), child->value_size()});
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
    visit(document, task, 0, digest);
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
