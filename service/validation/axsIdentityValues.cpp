#include "axsIdentityValues.h"

std::size_t axsIdentityValues::number_of(std::string_view value)
{
  std::size_t const number = values.insert(value);
  if (number == entries.size())
    entries.emplace_back();
  return number;
}

axsPlace const* axsIdentityValues::add_deep(std::string_view value, axsPlace place, std::size_t level)
{
  std::size_t const number = number_of(value);
  Entry& entry = entries[number];
  if (entry.level != 0)
    return &entry.place;
  entry = {place, deep++, static_cast<std::uint32_t>(level)};
  auto const outermost = near.lower_bound({number, 0});
  bool const is_near = outermost != near.end() && outermost->first.first == number && outermost->first.second <= level;
  return is_near ? &outermost->second : nullptr;
}

axsPlace const* axsIdentityValues::add_near(
  std::string_view value, axsPlace place, std::size_t level, std::size_t first_deep)
{
  std::size_t const number = number_of(value);
  Entry const& entry = entries[number];
  if (entry.level >= level && entry.order >= first_deep)
    return &entry.place;
  auto const [at, is_new] = near.try_emplace({number, level}, place);
  if (is_new)
    near_by_level[level].push_back(number);
  return is_new ? nullptr : &at->second;
}

void axsIdentityValues::end(std::size_t level)
{
  auto const ended = near_by_level.find(level);
  if (ended == near_by_level.end())
    return;
  for (std::size_t const number : ended->second)
    near.erase({number, level});
  near_by_level.erase(ended);
}
