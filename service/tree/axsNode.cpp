#include "axsNode.h"

#include "axsTree.h"

#include <algorithm>
#include <cstring>

namespace
{
// The name of a processing instruction or document type stands in its text.
std::string_view first_word(std::string_view text)
{
  return text.substr(0, text.find_first_of(" \t\r\n[>"));
}

std::string_view doctype_name(std::string_view declaration)
{
  declaration.remove_prefix(std::strlen("<!DOCTYPE"));
  declaration.remove_prefix(std::min(declaration.find_first_not_of(" \t\r\n"), declaration.size()));
  return first_word(declaration);
}

std::string_view text_of(axsNode const& leaf)
{
  return static_cast<axsLeaf const&>(leaf).text();
}
}

axsTree& axsNode::tree() const noexcept
{
  return is_document() ? const_cast<axsTree&>(static_cast<axsTree const&>(*this)) : axsArena::tree_of(this);
}

axsNode& axsNode::root() noexcept
{
  axsNode* node = this;
  while (node->parent_link != nullptr)
    node = node->parent_link;
  return *node;
}

axsName const* axsNode::name() const noexcept
{
  if (is_element())
    return &static_cast<axsElement const*>(this)->element_name();
  return is_attribute() ? attribute_name : nullptr;
}

std::string_view axsNode::node_name() const noexcept
{
  switch (node_kind)
  {
  case axsKind::document:
    return "#document";
  case axsKind::element:
  case axsKind::attribute:
    return name()->utf8();
  case axsKind::text:
    return "#text";
  case axsKind::cdata_section:
    return "#cdata-section";
  case axsKind::comment:
    return "#comment";
  case axsKind::processing_instruction:
    return first_word(text_of(*this));
  case axsKind::doctype:
    return doctype_name(text_of(*this));
  }
  return {};
}

std::string_view axsNode::instruction_data() const noexcept
{
  std::string_view text = text_of(*this);
  text.remove_prefix(std::min(node_name().size() + 1, text.size()));
  return text;
}

void axsNode::append_text_to(std::string& text) const
{
  if (!is_parent())
  {
    text += value();
    return;
  }
  for (axsNode const* node = first_child(); node != nullptr; node = node->next_in_tree(*this))
    if (node->is_text())
      text += text_of(*node);
}

void axsNode::root_acquired() noexcept
{
  // The document is no child of anything.
  if (!is_document())
    ++axsArena::tree_of(this).holders;
}

void axsNode::root_released() noexcept
{
  axsTree& held_by = tree();
  if (is_document())
    return held_by.destroy();
  held_by.free_subtree(*this);
  held_by.release();
}
