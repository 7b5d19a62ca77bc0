#include "axsIdentityTable.h"

#include <utility>

axsPlace const* axsIdentityTable::add(std::string_view value, axsPlace place, bool is_deep)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
  {
    entries.push_back({place, own_depth, 0, is_deep});
    return nullptr;
  }
  entries[number].is_deep = entries[number].is_deep || is_deep;
  return &entries[number].place;
}

bool axsIdentityTable::has(std::string_view value) const
{
  std::size_t const number = values.find(value);
  return number != axsValueSet::none && conflict_of(entries[number]) == 0;
}

std::uint32_t axsIdentityTable::conflict_of(Entry const& entry) const noexcept
{
  return entry.is_deep && entry.conflict > cleared ? 0 : entry.conflict;
}

void axsIdentityTable::inherit(axsIdentityTable&& inner, std::function<void(std::string_view value)> const& lose)
{
  if (inner.size() > size())
  {
    std::swap(values, inner.values);
    std::swap(entries, inner.entries);
    std::swap(cleared, inner.cleared);
    if (owns_deep)
      cleared = own_depth;
  }
  for (std::size_t i = 0; i < inner.size(); ++i)
  {
    Entry entry = inner.entries[i];
    entry.conflict = inner.conflict_of(entry);
    if (is_own(entry))
      put_own(inner.values[i], entry);
    else if (is_lost_within(entry.conflict))
      inherit_lost(inner.values[i], entry);
    else if (!inherit_entry(inner.values[i], entry))
      lose(inner.values[i]);
  }
}

void axsIdentityTable::put_own(std::string_view value, Entry entry)
{
  entry.conflict = 0;
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    return entries.push_back(entry);
  entry.is_deep = entry.is_deep || entries[number].is_deep;
  entries[number] = entry;
}

// False for a conflict here.
bool axsIdentityTable::inherit_entry(std::string_view value, Entry entry)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
  {
    entries.push_back(entry);
    return true;
  }
  Entry& known = entries[number];
  bool const is_deep = known.is_deep || entry.is_deep;
  if (is_lost_within(conflict_of(known)))
    known = entry;
  else if (!is_own(known))
    known.conflict = own_depth;
  known.is_deep = is_deep;
  return conflict_of(known) == 0;
}

// A conflict further in has left nothing to be inherited, but for an element that owns what is deep.
void axsIdentityTable::inherit_lost(std::string_view value, Entry entry)
{
  if (!entry.is_deep)
    return;
  entry.conflict = own_depth + 1;
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    return entries.push_back(entry);
  Entry& known = entries[number];
  if (is_lost_within(conflict_of(known)))
    known.conflict = entry.conflict;
  known.is_deep = true;
}
