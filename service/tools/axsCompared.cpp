#include "axsCompared.h"

#include <algorithm>

namespace
{
using Kind = axsFlatTree::Kind;
using Attribute = axsFlatTree::Attribute;

// So many names of a path are shown, and about so many bytes of an element.
std::size_t const max_names = 50;
std::size_t const max_bytes = 200;

std::string step_of(axsFlatTree::Node const& node)
{
  std::string step = "/";
  switch (node.kind)
  {
  case Kind::element:
    step += node.name;
    break;
  case Kind::text:
    step += "text()";
    break;
  case Kind::comment:
    step += "comment()";
    break;
  case Kind::instruction:
    step += "processing-instruction('" + std::string(node.name) + "')";
    break;
  case Kind::doctype:
    return "DOCTYPE";
  case Kind::document:
  case Kind::left_out:
    break;
  }
  return node.position == 0 ? step : step + "[" + std::to_string(node.position) + "]";
}

std::string path_of(axsFlatTree const& tree, std::size_t node)
{
  std::vector<std::string> path;
  for (; node != 0 && path.size() < max_names; node = tree.nodes[node].parent)
    path.push_back(step_of(tree.nodes[node]));
  std::string text = node == 0 ? "" : "...";
  for (auto step = path.rbegin(); step != path.rend(); ++step)
    text += *step;
  return text;
}

void append_tag(std::string& text, axsFlatTree const& tree, axsFlatTree::Node const& node)
{
  text += '<';
  text += node.name;
  for (std::size_t i = 0; i < node.attribute_count && text.size() < max_bytes; ++i)
  {
    Attribute const& attribute = tree.attributes[node.first_attribute + i];
    text += ' ';
    text += attribute.name;
    text += "=\"";
    text += attribute.value.substr(0, max_bytes);
    text += '"';
  }
  text += node.size == 1 ? "/>" : ">";
}

void append_shown(std::string& text, axsFlatTree const& tree, axsFlatTree::Node const& node)
{
  std::string_view const data = node.text.substr(0, max_bytes);
  if (node.kind == Kind::element)
    append_tag(text, tree, node);
  else if (node.kind == Kind::comment)
    text.append("<!--").append(data).append("-->");
  else if (node.kind == Kind::instruction)
    text.append("<?").append(node.name).append(" ").append(data).append("?>");
  else
    text += data;
}

// The beginning of what is in the tree from the node on.
std::string shown_element(axsFlatTree const& tree, std::size_t node)
{
  std::string text;
  std::vector<std::size_t> open;
  std::size_t at = node;
  for (; at < tree.after(node) && text.size() < max_bytes; ++at)
  {
    while (!open.empty() && at == tree.after(open.back()))
    {
      text.append("</").append(tree.nodes[open.back()].name).append(">");
      open.pop_back();
    }
    append_shown(text, tree, tree.nodes[at]);
    if (tree.nodes[at].size > 1)
      open.push_back(at);
  }
  bool is_whole = at == tree.after(node) && text.size() < max_bytes;
  for (; is_whole && !open.empty(); open.pop_back())
    text.append("</").append(tree.nodes[open.back()].name).append(">");
  if (is_whole)
    return text;
  std::size_t end = std::min(text.size(), max_bytes);
  while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    --end;
  return text.substr(0, end) + "...";
}

std::string value_of(axsFlatTree const& tree, std::size_t node)
{
  return tree.nodes[node].kind == Kind::element ? shown_element(tree, node) : std::string(tree.nodes[node].text);
}

std::vector<Attribute> sorted_attributes(axsFlatTree const& tree, axsFlatTree::Node const& node)
{
  std::vector<Attribute> all;
  for (std::size_t i = 0; i < node.attribute_count; ++i)
    if (!tree.attributes[node.first_attribute + i].is_declaration)
      all.push_back(tree.attributes[node.first_attribute + i]);
  std::sort(all.begin(), all.end(), [](Attribute const& a, Attribute const& b) { return a.number < b.number; });
  return all;
}

std::vector<std::size_t> children_of(axsFlatTree const& tree, std::size_t node)
{
  std::vector<std::size_t> children;
  for (std::size_t child = node + 1; child < tree.after(node); child = tree.after(child))
    children.push_back(child);
  return children;
}
}

bool axsCompared::run(axsComparison::Take const& take)
{
  is_same = true;
  steps.assign(1, {0, 0});
  while (!steps.empty())
  {
    Step const step = steps.back();
    steps.pop_back();
    if (!compare(step, take))
      break;
  }
  return is_same;
}

// False when no more is wanted.
bool axsCompared::compare(Step step, axsComparison::Take const& take)
{
  using Difference = axsDifference::Kind;
  if (step.before != none && step.after != none)
  {
    Node const& before = first.nodes[step.before];
    Node const& after = second.nodes[step.after];
    if (before.hash == after.hash)
      return true;
    is_same = false;
    // What has been matched is of one kind and name.
    if (before.kind != Kind::element && before.kind != Kind::document)
      return take(difference(Difference::changed, step));
    if (!compare_attributes(step, take))
      return false;
    compare_children(step);
    return true;
  }
  is_same = false;
  return take(difference(step.after == none ? Difference::removed : Difference::added, step));
}

bool axsCompared::compare_attributes(Step step, axsComparison::Take const& take) const
{
  std::vector<Attribute> const before = sorted_attributes(first, first.nodes[step.before]);
  std::vector<Attribute> const after = sorted_attributes(second, second.nodes[step.after]);
  axsDifference found;
  found.line_before = first.nodes[step.before].line;
  found.line_after = second.nodes[step.after].line;
  auto const tell = [&](axsDifference::Kind kind, Attribute const* one, Attribute const* other)
  {
    found.kind = kind;
    found.path = kind == axsDifference::Kind::added ? path_of(second, step.after) : path_of(first, step.before);
    found.path.append("/@").append((one == nullptr ? other : one)->name);
    found.before = one == nullptr ? std::string_view() : one->value;
    found.after = other == nullptr ? std::string_view() : other->value;
    return take(found);
  };
  auto a = before.begin();
  auto b = after.begin();
  while (a != before.end() || b != after.end())
  {
    bool goes_on = true;
    if (b == after.end() || (a != before.end() && a->number < b->number))
      goes_on = tell(axsDifference::Kind::removed, &*a++, nullptr);
    else if (a == before.end() || b->number < a->number)
      goes_on = tell(axsDifference::Kind::added, nullptr, &*b++);
    else
    {
      goes_on = a->value == b->value || tell(axsDifference::Kind::changed, &*a, &*b);
      ++a;
      ++b;
    }
    if (!goes_on)
      return false;
  }
  return true;
}

void axsCompared::compare_children(Step step)
{
  std::vector<std::size_t> const before = children_of(first, step.before);
  std::vector<std::size_t> const after = children_of(second, step.after);
  std::vector<std::size_t> const matches = axsChildAlignment(first, before, second, after).matches();

  std::size_t const begin = steps.size();
  std::size_t next = 0;
  for (std::size_t i = 0; i < before.size(); ++i)
  {
    if (matches[i] == none)
    {
      steps.push_back({before[i], none});
      continue;
    }
    for (; next < matches[i]; ++next)
      steps.push_back({none, after[next]});
    steps.push_back({before[i], after[next++]});
  }
  for (; next < after.size(); ++next)
    steps.push_back({none, after[next]});
  // The last one is done first.
  std::reverse(steps.begin() + static_cast<std::ptrdiff_t>(begin), steps.end());
}

axsDifference axsCompared::difference(axsDifference::Kind kind, Step step) const
{
  axsDifference found;
  found.kind = kind;
  found.path = step.before == none ? path_of(second, step.after) : path_of(first, step.before);
  if (step.before != none)
  {
    found.before = value_of(first, step.before);
    found.line_before = first.nodes[step.before].line;
  }
  if (step.after != none)
  {
    found.after = value_of(second, step.after);
    found.line_after = second.nodes[step.after].line;
  }
  return found;
}
