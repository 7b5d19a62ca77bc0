#include "axsNode.h"

#include "axsAttribute.h"
#include "axsCommentNode.h"
#include "axsDoctype.h"
#include "axsDocument.h"
#include "axsElement.h"
#include "axsHandle.h"
#include "axsNodeView.h"
#include "axsProcessingInstruction.h"
#include "axsTextNode.h"

#include <axmElement.h>

#include <algorithm>
#include <climits>
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
}

axsNode* axsNode::of(axmNode const& node) noexcept
{
  // Asking for the type and the whole object is a good deal cheaper than casting across to this record. The types are
  // known to this library only, so that each has one description.
  std::type_info const* const type = &typeid(node);
  void* const object = const_cast<void*>(dynamic_cast<void const*>(&node));
  if (type == &typeid(axsElement))
    return static_cast<axsElement*>(object);
  if (type == &typeid(axsTextNode))
    return static_cast<axsTextNode*>(object);
  if (type == &typeid(axsNodeView))
    return &static_cast<axsNodeView*>(object)->node();
  if (type == &typeid(axsAttribute))
    return static_cast<axsAttribute*>(object);
  if (type == &typeid(axsCommentNode))
    return static_cast<axsCommentNode*>(object);
  if (type == &typeid(axsDocument))
    return static_cast<axsDocument*>(object);
  if (type == &typeid(axsProcessingInstruction))
    return static_cast<axsProcessingInstruction*>(object);
  if (type == &typeid(axsDoctype))
    return static_cast<axsDoctype*>(object);
  return nullptr;
}

axsDocument& axsNode::document() const noexcept
{
  return is_document() ? const_cast<axsDocument&>(static_cast<axsDocument const&>(*this)) : axsArena::document_of(this);
}

axsNode* axsNode::first_attribute() const noexcept
{
  return is_element() ? static_cast<axsElement const*>(this)->first_attribute() : nullptr;
}

axsNode& axsNode::root() noexcept
{
  axsNode* node = this;
  while (node->up != nullptr)
    node = node->up;
  return *node;
}

std::string_view axsNode::value_of_instruction() const noexcept
{
  std::string_view text = static_cast<axsProcessingInstruction const*>(this)->text();
  text.remove_prefix(std::min(node_name().size() + 1, text.size()));
  return text;
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
    return is_marked ? "#cdata-section" : "#text";
  case axsKind::comment:
    return "#comment";
  case axsKind::processing_instruction:
    return first_word(static_cast<axsProcessingInstruction const*>(this)->text());
  case axsKind::doctype:
    return doctype_name(static_cast<axsDoctype const*>(this)->text());
  }
  return {};
}

void axsNode::append_text_to(std::string& text) const
{
  if (!is_parent())
  {
    text += value();
    return;
  }
  for (axsNode const* node = first_child(); node != nullptr; node = node->next_in_tree(*this))
    if (node->kind() == axsKind::text)
      text += static_cast<axsTextNode const*>(node)->text();
}

std::shared_ptr<axmNode> axsNode::handle()
{
  switch (node_kind)
  {
  case axsKind::document:
    return axs_handle<axmNode>(static_cast<axsDocument&>(*this));
  case axsKind::element:
    return axs_handle<axmNode>(static_cast<axsElement&>(*this));
  case axsKind::attribute:
    return axs_handle<axmNode>(static_cast<axsAttribute&>(*this));
  case axsKind::text:
    return axs_handle<axmNode>(static_cast<axsTextNode&>(*this));
  case axsKind::comment:
    return axs_handle<axmNode>(static_cast<axsCommentNode&>(*this));
  case axsKind::processing_instruction:
    return axs_handle<axmNode>(static_cast<axsProcessingInstruction&>(*this));
  case axsKind::doctype:
    return axs_handle<axmNode>(static_cast<axsDoctype&>(*this));
  }
  return nullptr;
}

std::shared_ptr<axmElement> axsNode::item_handle()
{
  if (is_element())
    return axs_handle<axmElement>(static_cast<axsElement&>(*this));
  return std::allocate_shared<axsNodeView>(axsHandleAllocator<axsNodeView>(document().handle_pool()), *this);
}

void axsNode::root_released() noexcept
{
  if (is_document())
  {
    delete static_cast<axsDocument*>(this);
    return;
  }
  axsDocument& owner = document();
  axsTree::free_tree(*this);
  owner.release();
}

void axsLeaf::set_text(std::string_view text)
{
  // The old text may be where the new one goes, or be the new one.
  Apart* const old = is_apart() ? apart() : nullptr;
  if (text.size() <= room_units * unit)
  {
    if (!text.empty())
      std::memmove(room(), text.data(), text.size());
    length_within = static_cast<std::uint16_t>(text.size());
  }
  else
  {
    new (room()) Apart*(make_apart(text));
    length_within = length_of_apart;
  }
  if (old != nullptr)
    document().arena().release(old, old->size());
}

axsLeaf::Apart* axsLeaf::make_apart(std::string_view text)
{
  // What is longer could not be handed out.
  if (text.size() > INT_MAX / sizeof(wchar_t) - 64)
    throw std::bad_alloc();
  auto* const made = new (document().arena().allocate(sizeof(Apart) + text.size())) Apart{text.size()};
  std::memcpy(made->bytes(), text.data(), text.size());
  return made;
}
