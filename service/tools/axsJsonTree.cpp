#include "axsJsonTree.h"

#include "axsTextHash.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>

namespace
{
using Kind = axsFlatTree::Kind;
}

void axsJsonTree::run()
{
  std::vector<std::size_t> const top = children_of(0);
  json.begin_object();
  steps.push_back({Step::end_object, 0});
  if (top.size() == 1)
  {
    json.key(tree.nodes[top.front()].name);
    steps.push_back({Step::value, top.front()});
  }
  else
    push_content(0);
  while (!steps.empty() && json.is_wanted())
  {
    Work const work = steps.back();
    steps.pop_back();
    do_next(work);
  }
  json.finish();
}

void axsJsonTree::do_next(Work work)
{
  switch (work.step)
  {
  case Step::key:
    return json.key(tree.nodes[work.node].name);
  case Step::value:
    return write_value(work.node);
  case Step::item:
    return write_item(work.node);
  case Step::begin_array:
    return json.begin_array();
  case Step::end_array:
    return json.end_array();
  case Step::end_object:
    return json.end_object();
  }
}

void axsJsonTree::write_value(std::size_t place)
{
  axsFlatTree::Node const& node = tree.nodes[place];
  bool const has_text_alone = node.size == 2 && tree.nodes[place + 1].kind == Kind::text;
  if (node.attribute_count == 0 && node.size == 1)
    return json.null();
  if (node.attribute_count == 0 && has_text_alone)
    return json.text(tree.nodes[place + 1].text);
  json.begin_object();
  steps.push_back({Step::end_object, place});
  write_attributes(node);
  if (has_text_alone)
  {
    json.key("#text");
    json.text(tree.nodes[place + 1].text);
  }
  else if (node.size > 1 && has_groups(place))
    push_groups(place);
  else if (node.size > 1)
    push_content(place);
}

void axsJsonTree::write_attributes(axsFlatTree::Node const& node)
{
  for (std::size_t i = 0; i < node.attribute_count; ++i)
  {
    axsFlatTree::Attribute const& attribute = tree.attributes[node.first_attribute + i];
    json.key("@" + std::string(attribute.name));
    json.text(attribute.value);
  }
}

void axsJsonTree::write_item(std::size_t place)
{
  axsFlatTree::Node const& node = tree.nodes[place];
  if (node.kind == Kind::text)
    return json.text(node.text);
  json.begin_object();
  steps.push_back({Step::end_object, place});
  switch (node.kind)
  {
  case Kind::element:
    json.key(node.name);
    return write_value(place);
  case Kind::comment:
    json.key("#comment");
    return json.text(node.text);
  case Kind::instruction:
    json.key("#instruction");
    return json.text(std::string(node.name) + (node.text.empty() ? "" : " ") + std::string(node.text));
  case Kind::doctype:
    json.key("#doctype");
    return json.text(node.text);
  case Kind::document:
  case Kind::text:
  case Kind::left_out:
    return;
  }
}

void axsJsonTree::push_content(std::size_t node)
{
  json.key("#content");
  json.begin_array();
  steps.push_back({Step::end_array, node});
  std::vector<std::size_t> const children = children_of(node);
  for (auto child = children.rbegin(); child != children.rend(); ++child)
    steps.push_back({Step::item, *child});
}

// Whether there are elements only, and those with one name stand together.
bool axsJsonTree::has_groups(std::size_t node) const
{
  std::unordered_set<std::string_view, axsTextHash> names;
  std::string_view last;
  for (std::size_t child = node + 1; child < tree.after(node); child = tree.after(child))
  {
    if (tree.nodes[child].kind != Kind::element)
      return false;
    std::string_view const name = tree.nodes[child].name;
    if (name != last && !names.insert(name).second)
      return false;
    last = name;
  }
  return true;
}

void axsJsonTree::push_groups(std::size_t node)
{
  std::vector<std::size_t> const children = children_of(node);
  std::size_t const begin = steps.size();
  for (std::size_t i = 0; i < children.size();)
  {
    std::size_t end = i + 1;
    while (end < children.size() && tree.nodes[children[end]].name == tree.nodes[children[i]].name)
      ++end;
    steps.push_back({Step::key, children[i]});
    if (end - i > 1)
      steps.push_back({Step::begin_array, node});
    bool const is_array = end - i > 1;
    for (; i < end; ++i)
      steps.push_back({Step::value, children[i]});
    if (is_array)
      steps.push_back({Step::end_array, node});
  }
  std::reverse(steps.begin() + static_cast<std::ptrdiff_t>(begin), steps.end());
}

std::vector<std::size_t> axsJsonTree::children_of(std::size_t node) const
{
  std::vector<std::size_t> children;
  for (std::size_t child = node + 1; child < tree.after(node); child = tree.after(child))
    children.push_back(child);
  return children;
}
