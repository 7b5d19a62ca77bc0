#include "axsIdentityReferences.h"

#include <utility>

void axsIdentityReferences::add(std::string_view value, std::string text, axsPlace place)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    entries.push_back({std::move(text), place});
  set_open(number);
}

void axsIdentityReferences::look_again(std::string_view value)
{
  if (std::size_t const number = values.find(value); number != axsValueSet::none)
    set_open(number);
}

void axsIdentityReferences::take(axsIdentityReferences&& inner)
{
  if (inner.size() > size())
  {
    std::swap(values, inner.values);
    std::swap(entries, inner.entries);
    std::swap(open, inner.open);
  }
  for (std::size_t i = 0; i < inner.size(); ++i)
  {
    std::size_t const number = values.insert(inner.values[i]);
    if (number == entries.size())
      entries.push_back({std::move(inner.entries[i].text), inner.entries[i].place});
    if (inner.entries[i].is_open)
      set_open(number);
  }
}

void axsIdentityReferences::set_open(std::size_t number)
{
  if (!entries[number].is_open)
    open.push_back(number);
  entries[number].is_open = true;
}
