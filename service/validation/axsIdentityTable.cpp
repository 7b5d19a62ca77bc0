#include "axsIdentityTable.h"

#include <utility>

std::size_t axsIdentityTable::add(std::string_view value, axsPlace place)
{
  std::size_t const number = values.insert(value);
  if (number < entries.size())
    return number;
  entries.push_back({place, own_level});
  return none;
}

bool axsIdentityTable::has(std::string_view value) const
{
  std::size_t const number = values.find(value);
  return number != none && entries[number].conflict == 0;
}

void axsIdentityTable::inherit(axsIdentityTable&& inner)
{
  bool const is_inner_larger = inner.size() > size();
  if (is_inner_larger)
  {
    std::swap(values, inner.values);
    std::swap(entries, inner.entries);
  }
  for (std::size_t i = 0; i < inner.size(); ++i)
    if (is_own(inner.entries[i]))
      put_own(inner.value(i), inner.entries[i]);
    else
      inherit_entry(inner.value(i), inner.entries[i]);
}

// A conflict further in has left nothing to be inherited.
void axsIdentityTable::inherit_entry(std::string_view value, Entry const& entry)
{
  if (entry.conflict != 0 && entry.conflict != own_level)
    return;
  std::size_t const number = values.insert(value);
  if (number == entries.size())
  {
    entries.push_back(entry);
    return;
  }
  Entry& known = entries[number];
  if (is_own(known))
    return;
  bool const is_gone = known.conflict != 0 && known.conflict != own_level;
  if (is_gone)
    known = entry;
  else
    known.conflict = own_level;
}

void axsIdentityTable::put_own(std::string_view value, Entry const& entry)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    entries.push_back(entry);
  else
    entries[number] = entry;
}
