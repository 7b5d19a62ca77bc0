#include "axsTree.h"

#include <algorithm>
#include <new>

axsElement* axsTree::root_element() const noexcept
{
  axsNode* child = first_child();
  while (child != nullptr && !child->is_element())
    child = child->next_sibling();
  return static_cast<axsElement*>(child);
}

axsNode* axsTree::doctype() const noexcept
{
  axsNode* child = first_child();
  while (child != nullptr && child->kind() != axsKind::doctype)
    child = child->next_sibling();
  return child;
}

void axsTree::free_subtree(axsNode& top) noexcept
{
  auto const deepest_first = [](axsNode* node)
  {
    while (axsNode* const child = node->first_child())
      node = child;
    return node;
  };

  for (axsNode* node = deepest_first(&top);;)
  {
    axsNode* const next = node->next_sibling();
    axsNode* const parent = node->parent();
    bool const is_done = node == &top;
    free_node(*node);
    if (is_done)
      return;
    node = next != nullptr ? deepest_first(next) : parent;
  }
}

void axsTree::free_node(axsNode& node) noexcept
{
  if (node.is_document())
    return;
  if (!node.is_element())
    return free_leaf(static_cast<axsLeaf&>(node));
  auto& element = static_cast<axsElement&>(node);
  if (element.is_watched())
    parent_freeing(element);
  if (element.is_indexed())
    drop_attribute_index(element);
  for (axsAttribute* at = element.first_attribute(); at != nullptr;)
    free_leaf(*std::exchange(at, at->next_attribute()));
  name_table.remove_user(element.element_name());
  memory.release(reinterpret_cast<char*>(&element) - lead, lead + element.size());
}

void axsTree::free_leaf(axsLeaf& leaf) noexcept
{
  leaf.free_text();
  if (leaf.is_attribute())
    name_table.remove_user(static_cast<axsAttribute&>(leaf).full_name());
  memory.release(reinterpret_cast<char*>(&leaf) - lead, lead + leaf.size());
}

void axsTree::index_all_attributes()
{
  for (axsNode* node = first_child(); node != nullptr; node = node->next_in_tree(*this))
  {
    if (!node->is_element())
      continue;
    auto& element = static_cast<axsElement&>(*node);
    if (element.is_indexed() || !element.has_many_attributes())
      continue;
    attribute_indexes.try_emplace(&element, element.first_attribute());
    element.set_indexed(true);
  }
}

void axsTree::index_attributes(axsElement& element) noexcept
try
{
  if (shared)
    return;
  attribute_indexes.try_emplace(&element, element.first_attribute());
  element.set_indexed(true);
  if (axsElement* const oldest = indexed_elements[next_indexed])
    drop_attribute_index(*oldest);
  indexed_elements[next_indexed] = &element;
  next_indexed = (next_indexed + 1) % indexed_elements.size();
}
catch (std::bad_alloc const&)
{
  // Walks along the attributes go on.
}

void axsTree::attribute_linked(axsElement& element, axsAttribute& attribute, axsAttribute* previous) noexcept
try
{
  attribute_index(element).insert(attribute, previous);
}
catch (std::bad_alloc const&)
{
  drop_attribute_index(element);
}

void axsTree::drop_attribute_index(axsElement& element) noexcept
{
  attribute_indexes.erase(&element);
  element.set_indexed(false);
  std::replace(indexed_elements.begin(), indexed_elements.end(), &element, static_cast<axsElement*>(nullptr));
}
