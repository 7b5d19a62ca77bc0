#include "axsFlatTreeBuilder.h"

#include "axsDtd.h"
#include "axsFlatTreeNames.h"
#include "axsHashKey.h"
#include "axsLineFeeds.h"
#include "axsLocator.h"
#include "axsName.h"
#include "axsStartTag.h"

#include <algorithm>
#include <unordered_map>

namespace
{
std::string_view const spaces = " \t\r\n";

bool is_space(std::string_view text)
{
  return text.find_first_not_of(spaces) == std::string_view::npos;
}

std::string joined(std::string_view text)
{
  std::string made;
  for (std::size_t at = text.find_first_not_of(spaces); at != std::string_view::npos;
       at = text.find_first_not_of(spaces, at))
  {
    std::size_t const end = std::min(text.find_first_of(spaces, at), text.size());
    made += made.empty() ? "" : " ";
    made += text.substr(at, end - at);
    at = end;
  }
  return made;
}

// What a hash is made of; every part has its length before it.
class Parts
{
public:
  void add(std::uint64_t number)
  {
    for (int i = 0; i < 8; ++i)
      bytes += static_cast<char>(number >> (8 * i) & 0xFF);
  }

  void add(std::string_view text)
  {
    add(std::uint64_t{text.size()});
    bytes += text;
  }

  std::uint64_t hash() const { return axsHashKey::of_process().long_texts(bytes); }
  void clear() { bytes.clear(); }

private:
  std::string bytes;
};
}

axsFlatTreeBuilder::axsFlatTreeBuilder(axsFlatTree& built, axsFlatTreeNames& texts, axsFlatTreeRules const& left_out)
  : tree(built),
    names(texts),
    rules(left_out)
{
  tree.nodes.emplace_back();
  open.push_back({0, false, false, false, {}});
}

axsFlatTreeBuilder::Node& axsFlatTreeBuilder::add(Kind kind)
{
  Node& node = tree.nodes.emplace_back();
  node.kind = kind;
  node.parent = open.back().node;
  node.line = locator->begin().line;
  return node;
}

void axsFlatTreeBuilder::declaration(std::string_view version, std::string_view, std::string_view)
{
  is_xml_1_1 = version == "1.1";
}

// It comes as it is written.
void axsFlatTreeBuilder::doctype(std::shared_ptr<axsDtd const> const& type)
{
  std::string text = type->text;
  axsLineFeeds::normalise(text, is_xml_1_1);
  add(Kind::doctype).text = names.kept(rules.joins_space ? joined(text) : text);
}

void axsFlatTreeBuilder::start_element(axsStartTag const& tag)
{
  end_text();
  open.back().has_markup = true;
  bool is_preserved = open.back().is_preserved;
  std::size_t const first = tree.attributes.size();
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    tree.attributes.push_back(
      {names.shared(attribute.name->utf8()), names.number(attribute.name_space, attribute.name->local()),
        attribute.is_declaration, names.kept(attribute.value)});
    if (attribute.name->utf8() == "xml:space")
      is_preserved = attribute.value == "preserve";
  }
  Node& node = add(Kind::element);
  node.name = names.shared(tag.name->utf8());
  node.number = names.number(tag.name_space, tag.name->local());
  node.first_attribute = first;
  node.attribute_count = static_cast<std::uint32_t>(tree.attributes.size() - first);
  open.push_back({tree.nodes.size() - 1, is_preserved, false, false, {}});
}

void axsFlatTreeBuilder::end_element()
{
  end_text();
  Open const& ended = open.back();
  bool const is_laid_out = rules.leaves_out_space && !ended.is_preserved && ended.has_markup && !ended.has_text;
  if (is_laid_out)
    for (std::size_t const space : ended.spaces)
      tree.nodes[space].kind = Kind::left_out;
  open.pop_back();
}

void axsFlatTreeBuilder::text(std::string_view text, bool)
{
  if (!has_pending)
    pending_line = locator->begin().line;
  has_pending = true;
  pending += text;
}

void axsFlatTreeBuilder::end_text()
{
  if (!has_pending)
    return;
  has_pending = false;
  bool const is_joined = rules.joins_space && !open.back().is_preserved;
  std::string const made = is_joined ? joined(pending) : std::move(pending);
  pending.clear();
  if (made.empty())
    return;
  Node& node = add(Kind::text);
  node.text = names.kept(made);
  node.line = pending_line;
  if (is_space(made))
    open.back().spaces.push_back(tree.nodes.size() - 1);
  else
    open.back().has_text = true;
}

void axsFlatTreeBuilder::comment(std::string_view data)
{
  // A comment that is left out does not part a text.
  if (rules.leaves_out_comments)
    return;
  end_text();
  open.back().has_markup = true;
  add(Kind::comment).text = names.kept(rules.joins_space ? joined(data) : data);
}

void axsFlatTreeBuilder::processing_instruction(std::string_view target, std::string_view data)
{
  end_text();
  open.back().has_markup = true;
  Node& node = add(Kind::instruction);
  node.name = names.shared(target);
  node.number = names.number("?", target);
  node.text = names.kept(data);
}

void axsFlatTreeBuilder::finish()
{
  leave_out();
  count_sizes();
  number_children();
  hash_all();
}

void axsFlatTreeBuilder::leave_out()
{
  std::vector<std::size_t> places(tree.nodes.size());
  std::size_t kept = 0;
  for (std::size_t i = 0; i < tree.nodes.size(); ++i)
  {
    places[i] = kept;
    if (tree.nodes[i].kind == Kind::left_out)
      continue;
    Node node = tree.nodes[i];
    node.parent = places[node.parent];
    tree.nodes[kept++] = node;
  }
  tree.nodes.resize(kept);
}

void axsFlatTreeBuilder::count_sizes()
{
  for (std::size_t i = tree.nodes.size() - 1; i > 0; --i)
    tree.nodes[tree.nodes[i].parent].size += tree.nodes[i].size;
}

void axsFlatTreeBuilder::number_children()
{
  struct Count
  {
    std::uint32_t count = 0;
    std::size_t first = 0;
  };
  for (std::size_t parent = 0; parent < tree.nodes.size(); ++parent)
  {
    // One that was kept would be as slow to empty for each parent as the longest list of children was to fill in.
    std::unordered_map<std::uint64_t, Count> counts;
    for (std::size_t child = parent + 1; child < tree.after(parent); child = tree.after(child))
    {
      Node& node = tree.nodes[child];
      Count& count = counts[std::uint64_t{node.number} << 8 | static_cast<std::uint64_t>(node.kind)];
      count.first = count.count == 0 ? child : count.first;
      node.position = ++count.count;
    }
    for (auto const& [key, count] : counts)
      if (count.count == 1)
        tree.nodes[count.first].position = 0;
  }
}

// From the last node back, so that those in a node come before it.
void axsFlatTreeBuilder::hash_all()
{
  Parts parts;
  std::vector<std::size_t> order;
  for (std::size_t i = tree.nodes.size(); i-- > 0;)
  {
    Node& node = tree.nodes[i];
    parts.clear();
    parts.add(static_cast<std::uint64_t>(node.kind));
    parts.add(std::uint64_t{node.number});
    parts.add(node.text);
    order.clear();
    for (std::size_t at = 0; at < node.attribute_count; ++at)
      if (!tree.attributes[node.first_attribute + at].is_declaration)
        order.push_back(node.first_attribute + at);
    std::sort(order.begin(), order.end(),
      [this](std::size_t a, std::size_t b) { return tree.attributes[a].number < tree.attributes[b].number; });
    for (std::size_t const at : order)
    {
      parts.add(std::uint64_t{tree.attributes[at].number});
      parts.add(tree.attributes[at].value);
    }
    for (std::size_t child = i + 1; child < tree.after(i); child = tree.after(child))
      parts.add(tree.nodes[child].hash);
    node.hash = parts.hash();
  }
}
