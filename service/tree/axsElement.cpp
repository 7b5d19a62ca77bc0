#include "axsElement.h"

#include "axsAttribute.h"
#include "axsAttributeMap.h"
#include "axsDocument.h"
#include "axsStep.h"

namespace
{
std::string_view narrow(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}
}

axsElement::axsElement(axsName const& name) noexcept : axsNodeOf(axsKind::element)
{
  name_number = name.number();
  if (name_number == axsName::no_number)
    new (this + 1) axsName const*(&name);
}

axsName const& axsElement::element_name() const noexcept
{
  if (name_number == axsName::no_number)
    return *name_behind();
  return axsArena::document_of(this).names().numbered(name_number);
}

std::shared_ptr<axmNode> axsElement::getFirstChild()
{
  return axs_step(first_child());
}

std::shared_ptr<axmNode> axsElement::getNextSibling()
{
  return axs_step(next_sibling());
}

apString axsElement::getNodeName() const
{
  return element_name().wide();
}

std::shared_ptr<axmNamedNodeMap> axsElement::getAttributes()
{
  return std::allocate_shared<axsAttributeMap>(axsHandleAllocator<axsAttributeMap>(document().handle_pool()), *this);
}

void axsElement::reserved_element_0() {}
void axsElement::reserved_element_7() {}
void axsElement::reserved_element_8() {}
void axsElement::reserved_element_9() {}
void axsElement::reserved_element_10() {}
void axsElement::reserved_element_11() {}

apString axsElement::getAttribute(apString const& name) const
{
  axsAttribute const* const attribute = find_attribute(name);
  return attribute == nullptr ? apString() : apString::from_utf8(attribute->text());
}

void axsElement::setAttribute(apString const& name, apString const& value)
{
  utString const utf8 = value.to_utf8();
  axsAttribute* last = nullptr;
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute())
  {
    if (at->full_name().wide_view() == name.view())
      return static_cast<axsLeaf*>(at)->set_text(narrow(utf8));
    last = at;
  }
  axsName const* const known = document().names().given(name);
  if (known != nullptr)
    append_attribute(*document().make_attribute(*known, narrow(utf8)), last);
}

void axsElement::removeAttribute(apString const& name)
{
  if (axsAttribute* const attribute = find_attribute(name))
    take_attribute(*attribute);
}

bool axsElement::hasAttribute(apString const& name) const
{
  return find_attribute(name) != nullptr;
}

std::shared_ptr<axmNodeList> axsElement::selectNodes(apString const& xpath)
{
  return axsTree::select_nodes(*this, xpath);
}

std::shared_ptr<axmNode> axsElement::selectSingleNode(apString const& xpath)
{
  return axsTree::select_single_node(*this, xpath);
}

bool axsElement::get_attribute(apString const& name, apString& value) const
{
  axsAttribute const* const attribute = find_attribute(name);
  if (attribute == nullptr)
    return false;
  value.assign_utf8(attribute->text());
  return true;
}

axsAttribute* axsElement::find_attribute(apString const& name) const noexcept
{
  std::wstring_view const wanted = name.view();
  if (wanted.empty())
    return nullptr;
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute())
  {
    // Most names differ in their length or at their beginning, and need no comparison of all characters.
    std::wstring_view const found = at->full_name().wide_view();
    if (found.size() == wanted.size() && found.front() == wanted.front() && found.substr(1) == wanted.substr(1))
      return at;
  }
  return nullptr;
}

axsAttribute* axsElement::find_attribute(std::string_view name) const noexcept
{
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute())
    if (at->full_name().utf8() == name)
      return at;
  return nullptr;
}

void axsElement::append_attribute(axsAttribute& attribute, axsAttribute* last) noexcept
{
  attribute.up = this;
  attribute.next = nullptr;
  if (last == nullptr)
    attributes = &attribute;
  else
    last->next = &attribute;
  ++document().attribute_changes;
}

void axsElement::put_attribute(axsAttribute& attribute, axsAttribute* replaced) noexcept
{
  axsAttribute* last = nullptr;
  for (axsAttribute* at = attributes; at != replaced; at = at->next_attribute())
    last = at;
  append_attribute(attribute, last);
  acquire();
  document().release();
  if (replaced != nullptr)
  {
    attribute.next = replaced;
    take_attribute(*replaced);
  }
}

void axsElement::take_attribute(axsAttribute& attribute) noexcept
{
  document().nodes_leaving();
  axsAttribute* last = nullptr;
  for (axsAttribute* at = attributes; at != &attribute; at = at->next_attribute())
    last = at;
  if (last == nullptr)
    attributes = attribute.next_attribute();
  else
    last->next = attribute.next;
  attribute.up = nullptr;
  attribute.next = nullptr;
  ++document().attribute_changes;

  if (!attribute.is_busy())
    return document().free_node(attribute);
  document().acquire();
  release();
}
