#include "axsXPathModel.h"

#include "axsTree.h"

#include <unordered_set>

namespace
{
std::size_t const characters_a_step = 16;

using Test = axsXPathExpression::NodeTest;

bool is_text(axsNode const* node) noexcept
{
  return node != nullptr && node->is_text();
}

/// Whether the texts from `first` on hold a character.
bool has_characters(axsNode const& first) noexcept
{
  for (axsNode const* text = &first; is_text(text); text = text->next_sibling())
    if (!text->value().empty())
      return true;
  return false;
}

axsNode& first_text(axsNode& text) noexcept
{
  axsNode* first = &text;
  while (is_text(first->previous_sibling()))
    first = first->previous_sibling();
  return *first;
}

/// Whether a node that is no attribute is one of the data model.
bool is_visible(axsNode const& node) noexcept
{
  switch (node.kind())
  {
  case axsKind::text:
  case axsKind::cdata_section:
    return !is_text(node.previous_sibling()) && has_characters(node);
  case axsKind::doctype:
    return false;
  default:
    return true;
  }
}

/// The node before this one in document order, within its tree; `depth` counts the levels below where the walk started,
/// and a step to an ancestor of the start, told by a negative depth, leaves it at 0.
axsNode* previous_in_tree(axsNode& node, long long& depth) noexcept
{
  axsNode* at = node.previous_sibling();
  if (at == nullptr)
  {
    --depth;
    return node.parent();
  }
  for (axsNode* child = at->last_child(); child != nullptr; child = at->last_child())
  {
    at = child;
    ++depth;
  }
  return at;
}
}

axsXPathModel::axsXPathModel(axsNode& context, axsXPathMeter& counted)
  : meter(counted),
    topmost(&context.root()),
    detached_root{topmost, nullptr, -1},
    tree_root(topmost->is_document() ? axsXPathNode(topmost) : axsXPathNode(&detached_root)),
    namespaces(context.tree())
{
}

axsXPathNode axsXPathModel::wrapped(axsNode& node) const noexcept
{
  if (node.kind() == axsKind::doctype)
    return {};
  if (!node.is_text())
    return &node;
  axsNode& first = first_text(node);
  return has_characters(first) ? axsXPathNode(&first) : axsXPathNode();
}

axsXPathModel::Kind axsXPathModel::kind(axsXPathNode node) const noexcept
{
  if (node.is_virtual())
    return node.virtual_node().is_root() ? root_kind : namespace_kind;
  switch (node.node()->kind())
  {
  case axsKind::element:
    return element_kind;
  case axsKind::attribute:
    return attribute_kind;
  case axsKind::text:
  case axsKind::cdata_section:
    return text_kind;
  case axsKind::comment:
    return comment_kind;
  case axsKind::processing_instruction:
    return instruction_kind;
  default:
    return root_kind;
  }
}

axsXPathNode axsXPathModel::parent(axsXPathNode node) const noexcept
{
  if (node.is_virtual())
    return node.virtual_node().is_root() ? axsXPathNode() : axsXPathNode(node.virtual_node().base);
  if (axsNode* const parent = node.node()->parent())
    return parent;
  // An attribute that was taken from its element stands alone.
  return node == tree_root || node.node()->is_attribute() ? axsXPathNode() : tree_root;
}

std::string_view axsXPathModel::string_value(axsXPathNode node, std::string& scratch) const
{
  std::string_view const value = read_string_value(node, scratch);
  meter.spend(1 + value.size() / characters_a_step);
  return value;
}

std::string_view axsXPathModel::read_string_value(axsXPathNode node, std::string& scratch) const
{
  if (node.is_virtual() && !node.virtual_node().is_root())
    return node.virtual_node().declaration == nullptr ? axsXPathScopes::xml_uri
                                                      : node.virtual_node().declaration->value();
  axsNode const& base = anchor(node);
  if (is_text(&base) && is_text(base.next_sibling()))
  {
    scratch.clear();
    for (axsNode const* text = &base; is_text(text); text = text->next_sibling())
      scratch.append(text->value());
    return scratch;
  }
  if (!base.is_parent())
    return base.value();

  // Most have one text, which needs no copy.
  axsNode const* only = nullptr;
  bool has_several = false;
  for (axsNode const* at = base.first_child(); at != nullptr; at = at->next_in_tree(base))
  {
    meter.spend();
    if (!is_text(at))
      continue;
    if (only == nullptr)
    {
      only = at;
      continue;
    }
    if (!has_several)
      scratch.assign(only->value());
    has_several = true;
    scratch.append(at->value());
  }
  if (has_several)
    return scratch;
  return only == nullptr ? std::string_view() : only->value();
}

std::string_view axsXPathModel::local_name(axsXPathNode node) const noexcept
{
  if (!node.is_virtual())
    return node.node()->name() != nullptr ? node.node()->name()->local() : name(node);
  return name(node);
}

std::string_view axsXPathModel::namespace_uri(axsXPathNode node)
{
  switch (kind(node))
  {
  case element_kind:
    return namespaces.uri_of_element(static_cast<axsElement&>(*node.node()));
  case attribute_kind:
  {
    auto const& attribute = static_cast<axsAttribute&>(*node.node());
    axsElement const* const owner = attribute.owner();
    return owner == nullptr ? std::string_view() : namespaces.uri_of_attribute(*owner, attribute.full_name());
  }
  default:
    return {};
  }
}

std::string_view axsXPathModel::name(axsXPathNode node) const noexcept
{
  switch (kind(node))
  {
  case namespace_kind:
    // The prefix it is declared for; the declaration of the default namespace has none.
    if (node.virtual_node().declaration == nullptr)
      return "xml";
    return node.virtual_node().declaration->name()->prefix().empty() ? std::string_view()
                                                                     : node.virtual_node().declaration->name()->local();
  case element_kind:
  case attribute_kind:
  case instruction_kind:
    return node.node()->node_name();
  default:
    return {};
  }
}

bool axsXPathModel::walk(axsXPathAxis axis, axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (from.is_none())
    return false;
  switch (axis)
  {
  case axsXPathAxis::ancestor:
    return walk_ancestors(parent(from), test, visit);
  case axsXPathAxis::ancestor_or_self:
    return walk_ancestors(from, test, visit);
  case axsXPathAxis::attribute:
    return walk_attributes(from, test, visit);
  case axsXPathAxis::child:
    return walk_children(from, test, visit);
  case axsXPathAxis::descendant:
    return walk_descendants(from, test, visit);
  case axsXPathAxis::descendant_or_self:
    return walk_self(from, test, visit) || walk_descendants(from, test, visit);
  case axsXPathAxis::following:
    return walk_following(from, test, visit);
  case axsXPathAxis::following_sibling:
    return walk_following_siblings(from, test, visit);
  case axsXPathAxis::namespace_:
    return walk_namespaces(from, test, visit);
  case axsXPathAxis::parent:
    return walk_self(parent(from), test, visit);
  case axsXPathAxis::preceding:
    return walk_preceding(from, test, visit);
  case axsXPathAxis::preceding_sibling:
    return walk_preceding_siblings(from, test, visit);
  case axsXPathAxis::self:
    return walk_self(from, test, visit);
  }
  return false;
}

axsNode* axsXPathModel::first_below(axsXPathNode node) const noexcept
{
  if (!node.is_virtual())
    return node.node()->first_child();
  return node.virtual_node().is_root() && !topmost->is_attribute() ? topmost : nullptr;
}

bool axsXPathModel::passes_other(axsNode& node, axsXPathNodeTest const& test)
{
  switch (test.kind)
  {
  case Test::any_node:
    return is_visible(node);
  case Test::text:
    return is_text(&node) && is_visible(node);
  case Test::comment:
    return node.kind() == axsKind::comment;
  case Test::instruction:
    return node.kind() == axsKind::processing_instruction && (!test.has_target || node.node_name() == test.local);
  case Test::any_name_of_namespace:
    return node.is_element() && namespaces.uri_of_element(static_cast<axsElement&>(node)) == test.uri;
  default:
    return false;
  }
}

bool axsXPathModel::passes_any(axsXPathNode node, axsXPathNodeTest const& test)
{
  if (node.is_virtual() || node.node()->is_attribute() || node.node()->is_document())
  {
    meter.spend();
    return test.kind == Test::any_node;
  }
  return passes(*node.node(), test);
}

bool axsXPathModel::passes_attribute(
  axsElement const& owner, axsAttribute const& attribute, axsXPathNodeTest const& test)
{
  meter.spend();
  axsName const& full_name = attribute.full_name();
  switch (test.kind)
  {
  case Test::name:
    if (test.has_prefix)
      return full_name.local() == test.local && namespaces.uri_of_attribute(owner, full_name) == test.uri &&
             !axsXPathScopes::is_declaration(full_name);
    return &full_name == test.name && !axsXPathScopes::is_declaration(full_name);
  case Test::any_name_of_namespace:
    return namespaces.uri_of_attribute(owner, full_name) == test.uri && !axsXPathScopes::is_declaration(full_name);
  case Test::any_node:
  case Test::any_name:
    return !axsXPathScopes::is_declaration(full_name);
  default:
    return false;
  }
}

bool axsXPathModel::walk_self(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  return !from.is_none() && passes_any(from, test) && visit(from);
}

bool axsXPathModel::walk_ancestors(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  for (axsXPathNode at = from; !at.is_none(); at = parent(at))
    if (passes_any(at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_attributes(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (kind(from) != element_kind)
    return false;
  auto const& owner = static_cast<axsElement const&>(*from.node());
  for (axsAttribute* at = owner.first_attribute(); at != nullptr; at = at->next_attribute())
    if (passes_attribute(owner, *at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_namespaces(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (kind(from) != element_kind)
    return false;
  auto& element = static_cast<axsElement&>(*from.node());
  auto known = scope_ranges.find(&element);
  if (known == scope_ranges.end())
    known = scope_ranges.emplace(&element, collect_namespaces(element)).first;
  for (std::size_t i = 0; i < known->second.count; ++i)
  {
    meter.spend();
    axsXPathNode const node(&namespace_nodes[known->second.first + i]);
    bool const passes = test.kind == Test::any_node || test.kind == Test::any_name ||
                        (test.kind == Test::name && !test.has_prefix && name(node) == test.local);
    if (passes && visit(node))
      return true;
  }
  return false;
}

axsXPathModel::Range axsXPathModel::collect_namespaces(axsElement& element)
{
  Range range{namespace_nodes.size(), 0};
  auto const add = [&](axsNode* declaration)
  {
    namespace_nodes.push_back({&element, declaration, static_cast<int>(range.count)});
    ++range.count;
  };

  axsName const* const declaration_of_xml = element.tree().names().find("xmlns:xml");
  std::unordered_set<axsName const*> hidden;
  add(nullptr);
  for (axsNode* at = &element; at != nullptr; at = at->parent())
  {
    for (axsNode* attribute = at->first_attribute(); attribute != nullptr; attribute = attribute->next_sibling())
    {
      meter.spend();
      axsName const& declared = *attribute->name();
      // The nearest declaration of a prefix counts; an empty one takes the namespace away.
      if (axsXPathScopes::is_declaration(declared) && &declared != declaration_of_xml &&
          hidden.insert(&declared).second && !attribute->value().empty())
        add(attribute);
    }
  }
  return range;
}

bool axsXPathModel::walk_children(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  for (axsNode* at = first_below(from); at != nullptr; at = at->next_sibling())
    if (passes(*at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_descendants(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  axsNode& base = anchor(from);
  for (axsNode* at = first_below(from); at != nullptr; at = at->next_in_tree(base))
    if (passes(*at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_following(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (from == tree_root)
    return false;
  axsNode* at = &anchor(from);
  // What follows an attribute or namespace node begins with the content of its element.
  bool const is_inside = from.is_virtual() || at->is_attribute();
  if (at->is_attribute())
    at = at->parent();
  if (at != nullptr)
    at = is_inside ? at->next_in_tree(*topmost) : at->next_after_subtree(*topmost);
  for (; at != nullptr; at = at->next_in_tree(*topmost))
    if (passes(*at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_following_siblings(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (from.is_virtual() || from.node()->is_attribute())
    return false;
  for (axsNode* at = from.node()->next_sibling(); at != nullptr; at = at->next_sibling())
    if (passes(*at, test) && visit(at))
      return true;
  return false;
}

bool axsXPathModel::walk_preceding(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (from == tree_root)
    return false;
  axsNode* at = &anchor(from);
  if (at->is_attribute())
    at = at->parent();
  long long depth = 0;
  while (at != nullptr && (at = previous_in_tree(*at, depth)) != nullptr)
  {
    bool const is_ancestor = depth < 0;
    if (is_ancestor)
      depth = 0;
    else if (passes(*at, test) && visit(at))
      return true;
  }
  return false;
}

bool axsXPathModel::walk_preceding_siblings(axsXPathNode from, axsXPathNodeTest const& test, axsXPathVisitor visit)
{
  if (from.is_virtual() || from.node()->is_attribute())
    return false;
  for (axsNode* at = from.node()->previous_sibling(); at != nullptr; at = at->previous_sibling())
    if (passes(*at, test) && visit(at))
      return true;
  return false;
}
