#include "axsDocument.h"

#include "axsAttribute.h"
#include "axsChildList.h"
#include "axsCommentNode.h"
#include "axsDoctype.h"
#include "axsElement.h"
#include "axsHandle.h"
#include "axsProcessingInstruction.h"
#include "axsResultList.h"
#include "axsTextNode.h"

#include <string>
#include <utility>
#include <vector>

namespace
{
std::string_view narrow(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}
}

axsDocument::axsDocument(apString const& uri)
  : axsNodeOf(axsKind::document),
    address(uri),
    handles(axsHandlePool::make()),
    memory(*this)
{
}

std::shared_ptr<axmDocument> axsDocument::make(apString const& uri)
{
  return axs_handle<axmDocument>(*new axsDocument(uri));
}

std::shared_ptr<axmElement> axsDocument::createElement(apString const& name)
{
  axsName const* const known = names().given(name);
  return known == nullptr ? nullptr : axs_handle<axmElement>(*make_element(*known));
}

std::shared_ptr<axmTextNode> axsDocument::createTextNode(apString const& data)
{
  return axs_handle<axmTextNode>(*make_text(narrow(data.to_utf8()), false));
}

std::shared_ptr<axmCommentNode> axsDocument::createComment(apString const& data)
{
  return axs_handle<axmCommentNode>(*make_comment(narrow(data.to_utf8())));
}

std::shared_ptr<axmElement> axsDocument::getDocumentElement()
{
  axsElement* const root = root_element();
  return root == nullptr ? nullptr : axs_handle<axmElement>(*root);
}

apString axsDocument::getDocumentURI() const
{
  return address;
}

void axsDocument::reserved_document_5() {}
void axsDocument::reserved_document_7() {}

std::shared_ptr<axmNodeList> axsDocument::getElementsByTagName(apString const& name)
{
  std::vector<axsXPathNode> found;
  if (axsName const* const wanted = names().find(narrow(name.to_utf8())))
    for (axsNode* node = first_child(); node != nullptr; node = node->next_in_tree(*this))
      if (node->is_element() && static_cast<axsElement*>(node)->is_named(*wanted))
        found.push_back(node);
  return std::allocate_shared<axsResultList>(axsHandleAllocator<axsResultList>(handle_pool()), *this, std::move(found));
}

axsElement* axsDocument::root_element() const noexcept
{
  axsNode* child = first_child();
  while (child != nullptr && !child->is_element())
    child = child->next_sibling();
  return static_cast<axsElement*>(child);
}

axsElement* axsDocument::make_element(axsName const& name)
{
  return new (memory.allocate(axsElement::size_for(name))) axsElement(name);
}

// A text that a small block can hold stands in the block of its node.
template <class Leaf, class... Arguments>
Leaf* axsDocument::make_leaf(std::string_view text, Arguments&&... arguments)
{
  bool const within = sizeof(Leaf) + text.size() <= axsArena::small_limit;
  std::size_t const units = within ? axsLeaf::units_for(text.size()) : 1;
  std::size_t const size = sizeof(Leaf) + units * axsLeaf::unit;
  void* const block = memory.allocate(size);
  auto* const leaf = new (block) Leaf(static_cast<std::uint8_t>(units), std::forward<Arguments>(arguments)...);
  try
  {
    static_cast<axsLeaf*>(leaf)->set_text(text);
  }
  catch (...)
  {
    memory.release(block, size);
    throw;
  }
  return leaf;
}

axsAttribute* axsDocument::make_attribute(axsName const& name, std::string_view value)
{
  return make_leaf<axsAttribute>(value, name);
}

axsTextNode* axsDocument::make_text(std::string_view data, bool cdata)
{
  auto* const text = make_leaf<axsTextNode>(data);
  text->is_marked = cdata;
  return text;
}

axsCommentNode* axsDocument::make_comment(std::string_view data)
{
  return make_leaf<axsCommentNode>(data);
}

axsProcessingInstruction* axsDocument::make_processing_instruction(std::string_view target, std::string_view data)
{
  std::string text(target);
  if (!data.empty())
    text.append(" ").append(data);
  return make_leaf<axsProcessingInstruction>(text);
}

axsDoctype* axsDocument::make_doctype(std::string_view declaration)
{
  return make_leaf<axsDoctype>(declaration);
}

void axsDocument::free_node(axsNode& node) noexcept
{
  auto const free_as = [&](auto& leaf)
  {
    auto& text = static_cast<axsLeaf&>(leaf);
    if (text.is_apart())
      memory.release(text.apart(), text.apart()->size());
    memory.release(&leaf, sizeof leaf + text.room_units * axsLeaf::unit);
  };

  switch (node.kind())
  {
  case axsKind::document:
    return;
  case axsKind::element:
  {
    auto& element = static_cast<axsElement&>(node);
    for (axsAttribute* at = element.first_attribute(); at != nullptr;)
      free_as(*std::exchange(at, at->next_attribute()));
    return memory.release(&element, element.size());
  }
  case axsKind::attribute:
    return free_as(static_cast<axsAttribute&>(node));
  case axsKind::text:
    return free_as(static_cast<axsTextNode&>(node));
  case axsKind::comment:
    return free_as(static_cast<axsCommentNode&>(node));
  case axsKind::processing_instruction:
    return free_as(static_cast<axsProcessingInstruction&>(node));
  case axsKind::doctype:
    return free_as(static_cast<axsDoctype&>(node));
  }
}

void axsDocument::result_lists_hold_nodes() noexcept
{
  while (result_lists != nullptr)
    result_lists->nodes_leaving();
}

axsChildList*& axsDocument::lists_of(axsNode const& parent) noexcept
{
  return lists[reinterpret_cast<std::uintptr_t>(&parent) / sizeof(axsElement) % list_buckets];
}

void axsDocument::child_linked(axsParent& parent, axsNode const& child) noexcept
{
  parent.is_marked = false;
  for (axsChildList* list = lists_of(parent); list != nullptr; list = list->next_list)
    if (list->parent == &parent)
    {
      parent.is_marked = true;
      list->child_linked(child);
    }
}

void axsDocument::child_unlinking(axsParent& parent, axsNode const& child) noexcept
{
  parent.is_marked = false;
  for (axsChildList* list = lists_of(parent); list != nullptr; list = list->next_list)
    if (list->parent == &parent)
    {
      parent.is_marked = true;
      list->child_unlinking(child);
    }
}
