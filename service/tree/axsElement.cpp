#include "axsElement.h"

#include "axsTree.h"

axsElement::axsElement(axsName const& name) noexcept : axsParent(axsKind::element, name.number())
{
  if (name.number() == axsName::no_number)
    new (this + 1) axsName const*(&name);
}

axsName const& axsElement::element_name() const noexcept
{
  if (name_number() == axsName::no_number)
    return *following_name();
  return axsArena::tree_of(this).names().numbered(name_number());
}

axsAttribute* axsElement::find_attribute(std::wstring_view name) const noexcept
{
  if (name.empty())
    return nullptr;
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute())
  {
    // Most names differ in their length or at their beginning, and need no comparison of all characters.
    std::wstring_view const found = at->full_name().wide_view();
    if (found.size() == name.size() && found.front() == name.front() && found.substr(1) == name.substr(1))
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

axsAttribute* axsElement::find_attribute(axsName const& name) const noexcept
{
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute())
    if (&at->full_name() == &name)
      return at;
  return nullptr;
}

void axsElement::append_new_attribute(axsAttribute& attribute, axsAttribute* last) noexcept
{
  set_parent(attribute, this);
  set_next(attribute, nullptr);
  if (last == nullptr)
    attributes = &attribute;
  else
    set_next(*last, &attribute);
  tree().count_attribute_change();
}

void axsElement::put_attribute(axsAttribute& attribute, axsAttribute* replaced) noexcept
{
  append_new_attribute(attribute, attribute_before(replaced));
  acquire();
  tree().release();
  if (replaced != nullptr)
  {
    set_next(attribute, replaced);
    take_attribute(*replaced);
  }
}

void axsElement::take_attribute(axsAttribute& attribute) noexcept
{
  tree().nodes_leave();
  axsAttribute* const previous = attribute_before(&attribute);
  if (previous == nullptr)
    attributes = attribute.next_attribute();
  else
    set_next(*previous, attribute.next_attribute());
  set_parent(attribute, nullptr);
  set_next(attribute, nullptr);
  tree().count_attribute_change();

  if (!attribute.is_held())
    return tree().free_subtree(attribute);
  tree().acquire();
  release();
}

// Null for the first attribute; for null the last one.
axsAttribute* axsElement::attribute_before(axsAttribute const* attribute) const noexcept
{
  axsAttribute* previous = nullptr;
  for (axsAttribute* at = attributes; at != attribute; at = at->next_attribute())
    previous = at;
  return previous;
}
