#include "axsAttributeIndex.h"

axsAttributeIndex::axsAttributeIndex(axsAttribute* first) : positions(first)
{
  for (axsAttribute* at = first; at != nullptr; at = at->next_attribute())
  {
    by_name.emplace(&at->full_name(), Entry{at, last});
    last = at;
  }
}

axsAttribute* axsAttributeIndex::find(axsName const& name) const noexcept
{
  auto const found = by_name.find(&name);
  return found == by_name.end() ? nullptr : found->second.attribute;
}

axsAttribute* axsAttributeIndex::before(axsAttribute const* attribute) const noexcept
{
  return attribute == nullptr ? last : by_name.find(&attribute->full_name())->second.previous;
}

void axsAttributeIndex::insert(axsAttribute& attribute, axsAttribute* previous)
{
  by_name.emplace(&attribute.full_name(), Entry{&attribute, previous});
  set_previous(attribute.next_attribute(), &attribute);
  positions.insert(attribute, previous);
}

void axsAttributeIndex::remove(axsAttribute const& attribute) noexcept
{
  set_previous(attribute.next_attribute(), before(&attribute));
  positions.remove(attribute);
  by_name.erase(&attribute.full_name());
}

// For null, what is before the end: the last attribute.
void axsAttributeIndex::set_previous(axsAttribute const* attribute, axsAttribute* previous) noexcept
{
  if (attribute == nullptr)
    last = previous;
  else
    by_name.find(&attribute->full_name())->second.previous = previous;
}
