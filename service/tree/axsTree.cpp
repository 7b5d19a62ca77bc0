#include "axsTree.h"

#include "axsAttribute.h"
#include "axsChildList.h"
#include "axsCommentNode.h"
#include "axsElement.h"
#include "axsHandle.h"
#include "axsProcessingInstruction.h"
#include "axsTextNode.h"
#include "axsWriter.h"

#include <utAssert.h>

#include <utility>

namespace
{
axsNode* node_of(std::shared_ptr<axmNode> const& handle)
{
  return handle == nullptr ? nullptr : axsNode::of(*handle);
}

bool is_child(axsNode const* node, axsNode const& parent)
{
  return node != nullptr && !node->is_attribute() && node->parent() == &parent;
}

bool holds_other_element(axsNode const& document, axsNode const* replaced, axsNode const& moved)
{
  for (axsNode const* child = document.first_child(); child != nullptr; child = child->next_sibling())
    if (child->is_element() && child != replaced && child != &moved)
      return true;
  return false;
}

bool is_below(axsNode const& node, axsNode const& top)
{
  for (axsNode const* at = &node; at != nullptr; at = at->parent())
    if (at == &top)
      return true;
  return false;
}

bool is_before_doctype(axsNode const* node)
{
  for (; node != nullptr; node = node->next_sibling())
    if (node->kind() == axsKind::doctype)
      return true;
  return false;
}

// Whether `child` may be made a child of `parent` before `before`, in the place of `replaced` if that is not null
// (DOM Core, HIERARCHY_REQUEST_ERR and WRONG_DOCUMENT_ERR).
bool can_hold(axsNode const& parent, axsNode const& child, axsNode const* before, axsNode const* replaced)
{
  if (!parent.is_parent() || &parent.document() != &child.document())
    return false;
  switch (child.kind())
  {
  case axsKind::document:
  case axsKind::attribute:
  case axsKind::doctype:
    return false;
  case axsKind::text:
    return parent.is_element();
  case axsKind::comment:
  case axsKind::processing_instruction:
    return true;
  case axsKind::element:
    break;
  }
  if (parent.is_document())
    return !holds_other_element(parent, replaced, child) && !is_before_doctype(before);
  // What has no children has nothing below it: building a deep tree from the top takes no walk up at every step.
  return &parent != &child && (child.first_child() == nullptr || !is_below(parent, child));
}
}

namespace
{
// These operations are for nodes that are in no tree: one that is in a tree is moved, and that is reported.
bool report_attached(axsNode const& child)
{
  if (child.parent() == nullptr)
    return false;
  ut_report_assertion("new_child->getParentNode() == nullptr", "service/tree/axsTree.cpp", __LINE__);
  return true;
}
}

apString axsTree::node_name(axsNode const& node)
{
  return apString::from_utf8(node.node_name());
}

std::shared_ptr<axmNodeList> axsTree::children(axsNode& node)
{
  return std::allocate_shared<axsChildList>(axsHandleAllocator<axsChildList>(node.document().handle_pool()), node);
}

std::shared_ptr<axmDocument> axsTree::owner_document(axsNode& node)
{
  return axs_handle<axmDocument>(node.document());
}

std::shared_ptr<axmNode> axsTree::insert_before(
  axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& ref_child)
{
  axsNode* const child = node_of(new_child);
  axsNode* const before = node_of(ref_child);
  auto const may_be = [&]
  {
    return child != nullptr && (ref_child == nullptr || is_child(before, node)) &&
           can_hold(node, *child, before, nullptr);
  };
  if (!may_be())
    return nullptr;
  // Whoever hears the report may have changed the tree.
  if (report_attached(*child) && !may_be())
    return nullptr;
  move(static_cast<axsParent&>(node), *child, before == child ? child->next_sibling() : before);
  return new_child;
}

std::shared_ptr<axmNode> axsTree::replace_child(
  axsNode& node, std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& old_child)
{
  axsNode* const child = node_of(new_child);
  axsNode* const old = node_of(old_child);
  auto const may_be = [&]
  { return child != nullptr && is_child(old, node) && can_hold(node, *child, old->next_sibling(), old); };
  if (!may_be())
    return nullptr;
  if (report_attached(*child) && !may_be())
    return nullptr;
  if (child == old)
    return old_child;
  move(static_cast<axsParent&>(node), *child, old);
  detach(*old);
  return old_child;
}

std::shared_ptr<axmNode> axsTree::remove_child(axsNode& node, std::shared_ptr<axmNode> const& old_child)
{
  axsNode* const child = node_of(old_child);
  if (!is_child(child, node))
    return nullptr;
  detach(*child);
  return old_child;
}

apString axsTree::text(axsNode const& node)
{
  if (!node.is_parent())
    return apString::from_utf8(node.value());
  axsNode const* const child = node.first_child();
  if (child == nullptr)
    return apString();
  if (child->next_sibling() == nullptr && child->kind() == axsKind::text)
    return apString::from_utf8(child->value());
  std::string text;
  node.append_text_to(text);
  return apString::from_utf8(text);
}

void axsTree::set_text(axsNode& node, apString const& text)
{
  utString const utf8 = text.to_utf8();
  std::string_view const data(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
  switch (node.kind())
  {
  case axsKind::document:
  case axsKind::doctype:
    return;
  case axsKind::element:
  {
    axsNode* const made = node.document().make_text(data, false);
    while (axsNode* const child = node.first_child())
      detach(*child);
    append(static_cast<axsElement&>(node), *made);
    return;
  }
  case axsKind::attribute:
    static_cast<axsAttribute&>(node).axsLeaf::set_text(data);
    return;
  case axsKind::text:
    static_cast<axsTextNode&>(node).axsLeaf::set_text(data);
    return;
  case axsKind::comment:
    static_cast<axsCommentNode&>(node).axsLeaf::set_text(data);
    return;
  case axsKind::processing_instruction:
  {
    std::string target_and_data(node.node_name());
    target_and_data += ' ';
    target_and_data += data;
    static_cast<axsProcessingInstruction&>(node).axsLeaf::set_text(target_and_data);
    return;
  }
  }
}

apString axsTree::xml(axsNode const& node)
{
  std::string xml;
  return axsWriter::write(node, xml) ? apString::from_utf8(xml) : apString();
}

void axsTree::append(axsParent& parent, axsNode& child) noexcept
{
  link(parent, child, nullptr);
}

void axsTree::free_tree(axsNode& root) noexcept
{
  axsDocument& document = root.document();
  axsNode* node = &root;
  while (true)
  {
    if (axsNode* const child = node->first_child())
    {
      // It has no children any more when the way comes back to it.
      static_cast<axsParent*>(node)->first = nullptr;
      node = child;
      continue;
    }
    axsNode* const following = node->next;
    axsNode* const above = node->up;
    bool const done = node == &root;
    document.free_node(*node);
    if (done)
      return;
    node = following != nullptr ? following : above;
  }
}

void axsTree::link(axsParent& parent, axsNode& child, axsNode* before) noexcept
{
  child.up = &parent;
  child.next = before;
  axsNode* const first = parent.first;
  if (first == nullptr)
  {
    child.previous = &child;
    parent.first = &child;
  }
  else if (before == nullptr)
  {
    child.previous = first->previous;
    first->previous->next = &child;
    first->previous = &child;
  }
  else
  {
    child.previous = before->previous;
    before->previous = &child;
    if (before == first)
      parent.first = &child;
    else
      child.previous->next = &child;
  }
  if (parent.is_marked)
    parent.document().child_linked(parent, child);
}

void axsTree::unlink(axsNode& child) noexcept
{
  auto& parent = static_cast<axsParent&>(*child.up);
  axsDocument& document = child.document();
  document.nodes_leaving();
  if (parent.is_marked)
    document.child_unlinking(parent, child);
  axsNode* const first = parent.first;
  if (&child == first)
  {
    parent.first = child.next;
    if (child.next != nullptr)
      child.next->previous = child.previous;
  }
  else
  {
    child.previous->next = child.next;
    (child.next == nullptr ? first : child.next)->previous = child.previous;
  }
  child.up = nullptr;
  child.next = nullptr;
  child.previous = nullptr;
}

// Takes a child out of its parent. What nobody holds goes at once.
void axsTree::detach(axsNode& child) noexcept
{
  axsNode& parent = *child.up;
  unlink(child);
  if (!child.is_busy())
  {
    free_tree(child);
    return;
  }
  child.document().acquire();
  parent.release();
}

// The caller holds both.
void axsTree::move(axsParent& parent, axsNode& child, axsNode* before) noexcept
{
  axsNode& held_by = child.up != nullptr ? *child.up : child.document();
  if (child.up != nullptr)
    unlink(child);
  link(parent, child, before);
  parent.acquire();
  held_by.release();
}
