#include "RowContender.h"

#include <pugixml.hpp>

#include <cstring>

namespace
{
using Wanted = RowTask::Wanted;

class Walk
{
public:
  Walk(RowTask const& given, RowDigest& found)
    : task(given),
      digest(found),
      values(given.columns.size()),
      made(given.columns.size())
  {
  }

  void visit(pugi::xml_node parent, std::size_t level)
  {
    char const* const name = task.path[level].c_str();
    for (pugi::xml_node node = parent.child(name); node; node = node.next_sibling(name))
      if (level + 1 < task.path.size())
        visit(node, level + 1);
      else
        visit_record(node);
  }

private:
  void visit_record(pugi::xml_node node)
  {
    for (std::optional<std::string_view>& value : values)
      value.reset();
    take(node, task.record);
    digest.begin_row();
    for (std::size_t i = 0; i < values.size(); ++i)
      digest.add(i, values[i]);
  }

  // In one pass over the attributes and children, which is faster than a search for each.
  void take(pugi::xml_node node, Wanted const& element)
  {
    if (!element.attributes.empty())
      for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
        for (Wanted::Attribute const& wanted : element.attributes)
          if (!values[wanted.column] && wanted.name == attribute.name())
            values[wanted.column] = attribute.value();
    for (std::size_t const column : element.texts)
      if (!values[column])
        values[column] = text_of(node, made[column]);
    if (!element.children.empty())
      for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling())
        for (Wanted const& wanted : element.children)
          if (wanted.name == child.name())
            take(child, wanted);
  }

  // The texts directly in the node, joined.
  static std::string_view text_of(pugi::xml_node node, std::string& joined)
  {
    pugi::xml_node const first = node.first_child();
    if (!first)
      return {};
    if (!first.next_sibling())
      return first.type() == pugi::node_pcdata || first.type() == pugi::node_cdata ? first.value() : "";
    joined.clear();
    for (pugi::xml_node child = first; child; child = child.next_sibling())
      if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
        joined += child.value();
    return joined;
  }

  RowTask const& task;
  RowDigest& digest;
  std::vector<std::optional<std::string_view>> values;
  std::vector<std::string> made;
};
}

bool rows_with_pugixml(RowTask const& task, RowDigest& digest)
{
  pugi::xml_document document;
  if (!document.load_file(task.file.c_str(), pugi::parse_default))
    return false;
  Walk(task, digest).visit(document, 0);
  return true;
}
