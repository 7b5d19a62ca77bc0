#include "axsTreeComparison.h"

#include "axsDtd.h"
#include "axsStartTag.h"
#include "axsTokens.h"
#include "axsTree.h"

namespace
{
bool has_value(axsAttribute const& attribute, axsTagAttribute const& read)
{
  return attribute.text() == read.value ||
         (read.type != axsAttributeType::cdata && axsTokens::collapsed(attribute.text()) == read.value);
}

bool has_attributes(
  axsElement const& element, axsStartTag const& tag, std::unordered_set<axsNode const*> const& defaults)
{
  std::size_t expected = 0;
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
    expected += defaults.count(at) == 0 ? 1 : 0;
  for (axsTagAttribute const& read : *tag.attributes)
  {
    axsAttribute const* const found = element.find_attribute(read.name->utf8());
    bool const is_right = found != nullptr && defaults.count(found) == 0 && has_value(*found, read);
    if (read.is_specified && !is_right)
      return false;
    expected -= is_right ? 1 : 0;
  }
  return expected == 0;
}
}

axsTreeComparison::axsTreeComparison(axsTree const& tree, std::unordered_set<axsNode const*> const& defaults)
  : added(defaults),
    parent(&tree),
    next(tree.first_child())
{
}

bool axsTreeComparison::is_whole() noexcept
{
  return same && next == nullptr && parent->is_document();
}

void axsTreeComparison::doctype(std::shared_ptr<axsDtd const> const& type)
{
  axsNode const* const node = take();
  expect(
    node != nullptr && node->kind() == axsKind::doctype && static_cast<axsLeaf const*>(node)->text() == type->text);
}

void axsTreeComparison::start_element(axsStartTag const& tag)
{
  end_text();
  axsNode const* const node = same ? take() : nullptr;
  expect(node != nullptr && node->is_element() && node->name()->utf8() == tag.name->utf8() &&
         has_attributes(static_cast<axsElement const&>(*node), tag, added));
  if (!same)
    return;
  parent = node;
  next = node->first_child();
}

void axsTreeComparison::end_element()
{
  end_text();
  expect(next == nullptr);
  if (!same)
    return;
  next = parent->next_sibling();
  parent = parent->parent();
}

void axsTreeComparison::text(std::string_view text, bool)
{
  if (same)
    read += text;
}

void axsTreeComparison::comment(std::string_view data)
{
  end_text();
  axsNode const* const node = take();
  expect(node != nullptr && node->kind() == axsKind::comment && node->value() == data);
}

void axsTreeComparison::processing_instruction(std::string_view target, std::string_view data)
{
  end_text();
  axsNode const* const node = take();
  expect(node != nullptr && node->kind() == axsKind::processing_instruction && node->node_name() == target &&
         node->value() == data);
}

// The texts up to the next markup, of which there may be several in the tree.
void axsTreeComparison::end_text()
{
  if (!same)
    return;
  expected.clear();
  for (; next != nullptr && next->is_text(); next = next->next_sibling())
    expected += next->value();
  expect(expected == read);
  read.clear();
}

axsNode const* axsTreeComparison::take()
{
  axsNode const* const taken = next;
  next = taken == nullptr ? nullptr : taken->next_sibling();
  return taken;
}
