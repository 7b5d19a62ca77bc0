#include "axsContentIndex.h"

#include "axsContentGroup.h"

#include <algorithm>
#include <limits>

namespace
{
// Up to so many items, a look at each is as fast.
std::size_t const small = 8;

std::uint32_t const nowhere = std::numeric_limits<std::uint32_t>::max();

std::uint32_t first_from(
  std::vector<std::uint32_t> const& items, std::size_t begin, std::size_t end, std::uint32_t from) noexcept
{
  auto const first = items.begin() + static_cast<std::ptrdiff_t>(begin);
  auto const last = items.begin() + static_cast<std::ptrdiff_t>(end);
  auto const found = std::lower_bound(first, last, from);
  return found == last ? nowhere : *found;
}
}

void axsContentIndex::build(axsContentGroup const& group)
{
  used = group.items.size() > small;
  if (!used)
    return;
  std::vector<Entry> entries;
  collect(group, entries);
  std::sort(entries.begin(), entries.end(),
    [](Entry const& left, Entry const& right)
    {
      if (left.first != right.first)
        return left.first < right.first;
      return left.last != right.last ? left.last > right.last : left.item < right.item;
    });
  std::vector<std::uint32_t> open;
  for (Entry const& entry : entries)
    if (entry.first == entry.last)
      add_narrow(entry);
    else
      add_wide(entry, open);
}

// The group with the most names is asked itself, so that groups nested in each other do not each list what those within do.
void axsContentIndex::collect(axsContentGroup const& group, std::vector<Entry>& entries)
{
  auto const names_of = [&](std::uint32_t i)
  { return group.items[i].group == nullptr ? 0 : group.items[i].group->first.elements().size(); };
  auto const count = static_cast<std::uint32_t>(group.items.size());
  std::uint32_t largest = 0;
  for (std::uint32_t i = 1; i < count; ++i)
    if (names_of(i) > names_of(largest))
      largest = i;
  for (std::uint32_t i = 0; i < count; ++i)
  {
    axsContentItem const& item = group.items[i];
    bool const is_group = item.group != nullptr;
    if (item.wildcard != nullptr || (is_group && (i == largest || item.group->first.has_wildcards())))
      asked.push_back(i);
    else if (is_group)
      item.group->first.elements().any_of(
        [&](axsSymbolSet::Span const& span)
        {
          entries.push_back({span.first, span.last, i});
          return false;
        });
    else
      for (axsContentNames::Span const& span : item.names->spans)
        entries.push_back({span.first, span.last, i});
  }
}

void axsContentIndex::add_narrow(Entry const& entry)
{
  Narrow& items = narrow[entry.first];
  if (items.count == 0)
    items.begin = static_cast<std::uint32_t>(narrow_items.size());
  ++items.count;
  narrow_items.push_back(entry.item);
}

void axsContentIndex::add_wide(Entry const& entry, std::vector<std::uint32_t>& open)
{
  if (!wide.empty() && wide.back().first == entry.first && wide.back().last == entry.last)
  {
    wide.back().items.push_back(entry.item);
    return;
  }
  while (!open.empty() && wide[open.back()].last < entry.first)
    open.pop_back();
  wide.push_back({entry.first, entry.last, open.empty() ? 0 : open.back() + 1, {entry.item}});
  open.push_back(static_cast<std::uint32_t>(wide.size() - 1));
}

std::uint32_t axsContentIndex::find(
  axsContentGroup const& group, std::uint32_t from, std::uint32_t symbol, std::uint32_t space) const noexcept
{
  std::uint32_t best = static_cast<std::uint32_t>(group.items.size());
  if (symbol != axsSymbols::none)
    best = std::min({best, find_narrow(from, symbol), find_wide(from, symbol)});
  for (auto at = std::lower_bound(asked.begin(), asked.end(), from); at != asked.end() && *at < best; ++at)
    if (group.begins(group.items[*at], symbol, space))
      best = *at;
  return best;
}

std::uint32_t axsContentIndex::find_narrow(std::uint32_t from, std::uint32_t symbol) const noexcept
{
  auto const found = narrow.find(symbol);
  if (found == narrow.end())
    return nowhere;
  std::size_t const begin = found->second.begin;
  return first_from(narrow_items, begin, begin + found->second.count, from);
}

std::uint32_t axsContentIndex::find_wide(std::uint32_t from, std::uint32_t symbol) const noexcept
{
  auto const after = std::upper_bound(
    wide.begin(), wide.end(), symbol, [](std::uint32_t number, Wide const& entry) { return number < entry.first; });
  std::uint32_t best = nowhere;
  for (auto at = static_cast<std::uint32_t>(after - wide.begin()); at != 0; at = wide[at - 1].enclosing)
    if (wide[at - 1].last >= symbol)
      best = std::min(best, first_from(wide[at - 1].items, 0, wide[at - 1].items.size(), from));
  return best;
}
