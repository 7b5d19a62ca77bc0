#include "axsIdentityTable.h"

#include <utility>

std::size_t axsIdentityTable::add(std::string_view value, axsPlace place)
{
  std::size_t const number = values.insert(value);
  if (number < entries.size())
    return number;
  entries.push_back({place});
  return none;
}

bool axsIdentityTable::has(std::string_view value) const
{
  std::size_t const number = values.find(value);
  return number != none && !entries[number].is_conflict;
}

void axsIdentityTable::inherit(axsIdentityTable&& inner)
{
  if (entries.empty())
  {
    *this = std::move(inner);
    for (Entry& entry : entries)
      entry.is_own = false;
    return;
  }
  for (std::size_t i = 0; i < inner.size(); ++i)
  {
    std::size_t const known = add(inner.value(i), inner[i].place);
    if (known == none)
    {
      entries.back().is_own = false;
      entries.back().is_conflict = inner[i].is_conflict;
    }
    else if (!entries[known].is_own)
      entries[known].is_conflict = true;
  }
}
