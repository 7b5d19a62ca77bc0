#include "axsDomOperations.h"

#include "axsChildList.h"
#include "axsHandle.h"
#include "axsStaticNodeList.h"
#include "axsWideText.h"
#include "axsWriter.h"
#include "axsXPathQuery.h"

#include <utAssert.h>

namespace
{
axsNode* node_of(std::shared_ptr<axmNode> const& handle)
{
  return handle == nullptr ? nullptr : axsHandle::node_of(*handle);
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
  if (!parent.is_parent() || &parent.tree() != &child.tree() || parent.tree().is_shared())
    return false;
  switch (child.kind())
  {
  case axsKind::document:
  case axsKind::attribute:
  case axsKind::doctype:
    return false;
  case axsKind::text:
  case axsKind::cdata_section:
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

// These operations are for nodes that are in no tree: one that is in a tree is moved, and that is reported.
bool report_attached(axsNode const& child)
{
  if (child.parent() == nullptr)
    return false;
  ut_report_assertion("new_child->getParentNode() == nullptr", "service/dom/axsDomOperations.cpp", __LINE__);
  return true;
}
}

std::shared_ptr<axmNode> axsDomOperations::parent(axsNode& node)
{
  return axsHandle::of(node.parent());
}

std::shared_ptr<axmNode> axsDomOperations::first_child(axsNode& node)
{
  return axsHandle::of(node.first_child());
}

std::shared_ptr<axmNode> axsDomOperations::last_child(axsNode& node)
{
  return axsHandle::of(node.last_child());
}

std::shared_ptr<axmNode> axsDomOperations::previous_sibling(axsNode& node)
{
  return axsHandle::of(node.previous_sibling());
}

std::shared_ptr<axmNode> axsDomOperations::next_sibling(axsNode& node)
{
  return axsHandle::of(node.next_sibling());
}

std::shared_ptr<axmNodeList> axsDomOperations::children(axsNode& node)
{
  return axsHandle::make_object<axmNodeList, axsChildList>(axsDomDocument::of(node), node);
}

std::shared_ptr<axmDocument> axsDomOperations::owner_document(axsNode& node)
{
  return axsHandle::make<axmDocument>(axsDomDocument::of(node));
}

std::shared_ptr<axmNode> axsDomOperations::insert_before(
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
  static_cast<axsParent&>(node).insert(*child, before == child ? child->next_sibling() : before);
  return new_child;
}

std::shared_ptr<axmNode> axsDomOperations::replace_child(
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
  auto& parent = static_cast<axsParent&>(node);
  parent.insert(*child, old);
  parent.remove(*old);
  return old_child;
}

std::shared_ptr<axmNode> axsDomOperations::remove_child(axsNode& node, std::shared_ptr<axmNode> const& old_child)
{
  axsNode* const child = node_of(old_child);
  if (!is_child(child, node) || node.tree().is_shared())
    return nullptr;
  static_cast<axsParent&>(node).remove(*child);
  return old_child;
}

bool axsDomOperations::is_node(axmNode const& node, axsNode const& record) noexcept
{
  return axsHandle::node_of(node) == &record;
}

apString axsDomOperations::text(axsNode const& node)
{
  if (!node.is_parent())
    return apString::from_utf8(node.value());
  axsNode const* const child = node.first_child();
  if (child == nullptr)
    return apString();
  if (child->next_sibling() == nullptr && child->is_text())
    return apString::from_utf8(child->value());
  std::string text;
  node.append_text_to(text);
  return apString::from_utf8(text);
}

bool axsDomOperations::may_change(axsNode const& node)
{
  if (!node.tree().is_shared())
    return true;
  ut_report_assertion("the document is not shared", "service/dom/axsDomOperations.cpp", __LINE__);
  return false;
}

bool axsDomOperations::to_utf8(apString const& text, utString& utf8)
{
  if (axsWideText::to_utf8(text, utf8))
    return true;
  ut_report_assertion("a surrogate has its other half", "service/dom/axsDomOperations.cpp", __LINE__);
  return false;
}

void axsDomOperations::set_text(axsNode& node, apString const& text)
{
  utString data;
  if (!may_change(node) || !to_utf8(text, data))
    return;
  switch (node.kind())
  {
  case axsKind::document:
  case axsKind::doctype:
    return;
  case axsKind::element:
  {
    auto& element = static_cast<axsElement&>(node);
    axsNode* const made = axsDomDocument::of(node).make_text(data.view(), false);
    while (axsNode* const child = element.first_child())
      element.remove(*child);
    element.append_new(*made);
    return;
  }
  case axsKind::attribute:
  case axsKind::text:
  case axsKind::cdata_section:
  case axsKind::comment:
    return static_cast<axsLeaf&>(node).set_text(data.view());
  case axsKind::processing_instruction:
  {
    std::string target_and_data(node.node_name());
    target_and_data += ' ';
    target_and_data += data.view();
    return static_cast<axsLeaf&>(node).set_text(target_and_data);
  }
  }
}

apString axsDomOperations::xml(axsNode const& node)
{
  std::string xml;
  return axsWriter::write(node, xml) ? apString::from_utf8(xml) : apString();
}

std::shared_ptr<axmNodeList> axsDomOperations::select_nodes(axsNode& context, apString const& xpath)
{
  axsDomDocument& document = axsDomDocument::of(context);
  axsXPathError error;
  return axsStaticNodeList::make(
    context, axsXPathQuery::select(document.xpath_cache(), context, xpath.to_utf8().view(), error));
}

std::shared_ptr<axmNode> axsDomOperations::select_single_node(axsNode& context, apString const& xpath)
{
  axsXPathError error;
  return axsHandle::of(
    axsXPathQuery::select_first(axsDomDocument::of(context).xpath_cache(), context, xpath.to_utf8().view(), error));
}
