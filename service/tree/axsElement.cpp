#include "axsElement.h"

#include "axsTree.h"

#include <new>

namespace
{
int const max_walk = 256;
}

axsName const& axsElement::element_name() const noexcept
{
  if (name_number() == axsName::no_number)
    return *following_name();
  return axsArena::tree_of(this).names().numbered(name_number());
}

axsAttribute* axsElement::find_attribute(std::wstring_view name) const noexcept
{
  if (attributes == nullptr || name.empty())
    return nullptr;
  if (is_indexed())
    try
    {
      axsAttribute* const found = find_attribute(apString(name).to_utf8().view());
      // What is not Unicode has become another name.
      return found != nullptr && found->full_name().wide_view() == name ? found : nullptr;
    }
    catch (std::bad_alloc const&)
    {
      // A walk needs no memory.
    }
  int passed = 0;
  for (axsAttribute* at = attributes; at != nullptr; at = at->next_attribute(), ++passed)
  {
    // Most names differ in their length or at their beginning, and need no comparison of all characters.
    std::wstring_view const found = at->full_name().wide_view();
    if (found.size() == name.size() && found.front() == name.front() && found.substr(1) == name.substr(1))
    {
      index_if_many(passed);
      return at;
    }
  }
  index_if_many(passed);
  return nullptr;
}

axsAttribute* axsElement::find_attribute(std::string_view name) const noexcept
{
  if (is_indexed())
  {
    axsName const* const known = tree().names().find(name);
    return known == nullptr ? nullptr : index()->find(*known);
  }
  axsAttribute* at = attributes;
  int passed = 0;
  for (; at != nullptr && at->full_name().utf8() != name; at = at->next_attribute())
    ++passed;
  index_if_many(passed);
  return at;
}

axsAttribute* axsElement::find_attribute(axsName const& name) const noexcept
{
  if (is_indexed())
    return index()->find(name);
  axsAttribute* at = attributes;
  int passed = 0;
  for (; at != nullptr && &at->full_name() != &name; at = at->next_attribute())
    ++passed;
  index_if_many(passed);
  return at;
}

int axsElement::count_attributes() noexcept
{
  if (is_indexed())
    return static_cast<int>(index()->size());
  int count = 0;
  for (axsAttribute const* at = attributes; at != nullptr; at = at->next_attribute())
    ++count;
  index_if_many(count);
  return count;
}

axsAttribute* axsElement::attribute_at(int position) noexcept
{
  if (is_indexed())
    return index()->at(static_cast<std::size_t>(position));
  axsAttribute* at = attributes;
  int passed = 0;
  for (; at != nullptr && passed < position; at = at->next_attribute())
    ++passed;
  index_if_many(passed);
  return at;
}

void axsElement::append_new_attribute(axsAttribute& attribute, axsAttribute* last) noexcept
{
  link_attribute(attribute, last, nullptr);
}

void axsElement::put_attribute(axsAttribute& attribute, axsAttribute* replaced) noexcept
{
  acquire();
  if (replaced == nullptr)
    link_attribute(attribute, attribute_before(nullptr), nullptr);
  else
  {
    tree().nodes_leave();
    axsAttribute* const previous = attribute_before(replaced);
    axsAttribute* const next = replaced->next_attribute();
    unlink_attribute(*replaced, previous);
    link_attribute(attribute, previous, next);
    tree().acquire();
    release();
  }
  tree().release();
}

void axsElement::take_attribute(axsAttribute& attribute) noexcept
{
  tree().nodes_leave();
  unlink_attribute(attribute, attribute_before(&attribute));
  if (!attribute.is_held())
    return tree().free_subtree(attribute);
  tree().acquire();
  release();
}

void axsElement::link_attribute(axsAttribute& attribute, axsAttribute* previous, axsAttribute* next) noexcept
{
  set_parent(attribute, this);
  set_next(attribute, next);
  if (previous == nullptr)
    attributes = &attribute;
  else
    set_next(*previous, &attribute);
  if (is_indexed())
    tree().attribute_linked(*this, attribute, previous);
  tree().count_attribute_change();
}

void axsElement::unlink_attribute(axsAttribute& attribute, axsAttribute* previous) noexcept
{
  if (is_indexed())
    index()->remove(attribute);
  if (previous == nullptr)
    attributes = attribute.next_attribute();
  else
    set_next(*previous, attribute.next_attribute());
  set_parent(attribute, nullptr);
  set_next(attribute, nullptr);
  tree().count_attribute_change();
}

// Null for the first attribute; for null the last one.
axsAttribute* axsElement::attribute_before(axsAttribute const* attribute) const noexcept
{
  if (is_indexed())
    return index()->before(attribute);
  axsAttribute* previous = nullptr;
  int passed = 0;
  for (axsAttribute* at = attributes; at != attribute; at = at->next_attribute(), ++passed)
    previous = at;
  index_if_many(passed);
  return previous;
}

// A long walk along the attributes is a reason to walk no more.
void axsElement::index_if_many(int attributes_passed) const noexcept
{
  if (attributes_passed > max_walk)
    tree().index_attributes(const_cast<axsElement&>(*this));
}

bool axsElement::has_many_attributes() const noexcept
{
  int passed = 0;
  for (axsAttribute const* at = attributes; at != nullptr && passed <= max_walk; at = at->next_attribute())
    ++passed;
  return passed > max_walk;
}

axsAttributeIndex* axsElement::index() const noexcept
{
  return &tree().attribute_index(*this);
}
