#include "axsIdentityTable.h"

#include <utility>

std::size_t axsIdentityTable::add(std::string_view value, axsPlace place, std::size_t level)
{
  std::size_t const number = values.insert(value);
  if (number < entries.size())
  {
    entries[number].is_repeated = true;
    return number;
  }
  entries.push_back({place, static_cast<std::uint32_t>(level)});
  return none;
}

bool axsIdentityTable::has(std::string_view value) const
{
  std::size_t const number = values.find(value);
  return number != none && entries[number].conflict == 0;
}

bool axsIdentityTable::has_within(std::string_view value, std::size_t first, std::size_t level) const
{
  std::size_t const number = values.find(value);
  if (number == none)
    return false;
  Entry const& entry = entries[number];
  return entry.is_repeated || (number >= first && entry.level >= level);
}

void axsIdentityTable::inherit(axsIdentityTable&& inner, std::function<void(std::string_view value)> const& lose)
{
  bool const is_inner_larger = inner.size() > size();
  if (is_inner_larger)
  {
    std::swap(values, inner.values);
    std::swap(entries, inner.entries);
  }
  for (std::size_t i = 0; i < inner.size(); ++i)
    if (is_own(inner.entries[i]))
      put_own(inner.values[i], inner.entries[i]);
    else if (!inherit_entry(inner.values[i], inner.entries[i]))
      lose(inner.values[i]);
}

// A conflict further in has left nothing to be inherited. False for a conflict here.
bool axsIdentityTable::inherit_entry(std::string_view value, Entry const& entry)
{
  if (entry.conflict != 0 && entry.conflict != own_level)
    return true;
  std::size_t const number = values.insert(value);
  if (number == entries.size())
  {
    entries.push_back(entry);
    return true;
  }
  Entry& known = entries[number];
  if (is_own(known))
    return true;
  bool const is_gone = known.conflict != 0 && known.conflict != own_level;
  if (is_gone)
    known = entry;
  else
    known.conflict = own_level;
  return known.conflict == 0;
}

void axsIdentityTable::put_own(std::string_view value, Entry const& entry)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    entries.push_back(entry);
  else
    entries[number] = entry;
}
