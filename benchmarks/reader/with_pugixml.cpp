#include "Task.h"

#include <pugixml.hpp>

#include <algorithm>
#include <map>
#include <set>

namespace
{
void visit(pugi::xml_node parent, Task const& task, std::size_t depth, Digest& digest)
{
  for (pugi::xml_node node = parent.child(task.path[depth].c_str()); node;
       node = node.next_sibling(task.path[depth].c_str()))
  {
    if (depth + 1 < task.path.size())
    {
      visit(node, task, depth + 1, digest);
      continue;
    }
    for (std::string const& name : task.attributes)
      digest.add(node.attribute(name.c_str()).value());
    for (std::string const& name : task.children)
      if (pugi::xml_node const child = node.child(name.c_str()))
        digest.add(child.child_value());
  }
}

bool extract(std::string const& file, Task const& task, Digest& digest, unsigned flags)
{
  pugi::xml_document document;
  if (!document.load_file(file.c_str(), flags))
    return false;
  visit(document, task, 0, digest);
  return true;
}

// What the elements of one path have in common.
struct Statistics
{
  long count = 0;
  std::map<std::string, long> attributes;
  std::map<std::string, long> leaves; // children with text and nothing else, each the only one of its name
};

bool is_leaf(pugi::xml_node node)
{
  return node.first_child() && node.first_child() == node.last_child() &&
         node.first_child().type() == pugi::node_pcdata;
}

void gather(pugi::xml_node node, Statistics& statistics)
{
  ++statistics.count;
  for (pugi::xml_attribute const attribute : node.attributes())
    ++statistics.attributes[attribute.name()];
  std::map<std::string, int> leaves;
  for (pugi::xml_node const child : node.children())
    leaves[child.name()] += is_leaf(child) ? 1 : 2;
  for (auto const& [name, times] : leaves)
    if (times == 1)
      ++statistics.leaves[name];
}

// Up to three names that every element has, in the order in which the first one has them.
template <class Range>
std::vector<std::string> common(std::map<std::string, long> const& counts, long count, Range const& range)
{
  std::vector<std::string> names;
  for (auto const& item : range)
  {
    auto const found = counts.find(item.name());
    if (found != counts.end() && found->second == count && names.size() < 3)
      names.push_back(item.name());
  }
  return names;
}

struct Walker : pugi::xml_tree_walker
{
  bool for_each(pugi::xml_node& node) override
  {
    if (node.type() != pugi::node_element)
      return true;
    path.resize(static_cast<std::size_t>(depth()));
    path.push_back(node.name());
    auto const [found, is_new] = statistics.try_emplace(path);
    if (is_new)
      first[path] = node;
    gather(node, found->second);
    return true;
  }

  std::vector<std::string> path;
  std::map<std::vector<std::string>, Statistics> statistics;
  std::map<std::vector<std::string>, pugi::xml_node> first;
};
}

bool extract_with_pugixml(std::string const& file, Task const& task, Digest& digest)
{
  return extract(file, task, digest, pugi::parse_default);
}

bool extract_with_pugixml_minimal(std::string const& file, Task const& task, Digest& digest)
{
  return extract(file, task, digest, pugi::parse_minimal);
}

std::vector<Task> find_tasks(std::string const& file)
{
  pugi::xml_document document;
  if (!document.load_file(file.c_str()))
    return {};
  Walker walker;
  document.traverse(walker);

  std::vector<std::pair<long, Task>> found;
  for (auto const& [path, statistics] : walker.statistics)
  {
    if (path.size() < 2)
      continue;
    pugi::xml_node const first = walker.first[path];
    auto const attributes = common(statistics.attributes, statistics.count, first.attributes());
    auto const children = common(statistics.leaves, statistics.count, first.children());
    if (!attributes.empty())
      found.push_back({statistics.count, {path, attributes, {}}});
    if (!children.empty())
      found.push_back({statistics.count, {path, {}, children}});
  }
  std::stable_sort(found.begin(), found.end(), [](auto const& a, auto const& b) { return a.first > b.first; });
  std::vector<Task> tasks;
  for (auto& [count, task] : found)
    tasks.push_back(std::move(task));
  return tasks;
}
