#include "axsReach.h"

#include <algorithm>
#include <utility>

void axsReach::add(axsContentItem const& leaf)
{
  axsReach own;
  std::vector<axsSymbolSet::Span> spans;
  if (leaf.names != nullptr)
  {
    for (axsContentNames::Span const& span : leaf.names->spans)
      spans.push_back({span.first, span.last, &leaf});
    own.names.add(std::move(spans));
    spans.clear();
    for (std::uint32_t const space : leaf.names->spaces)
      spans.push_back({space, space, &leaf});
    own.spaces.add(std::move(spans));
  }
  else if (leaf.wildcard != nullptr && leaf.wildcard->is_broad)
    own.broad.push_back(&leaf);
  else if (leaf.wildcard != nullptr)
    own.narrow = leaf.wildcard->reach;
  unite(own);
}

void axsReach::unite(axsReach const& other)
{
  names.unite(other.names);
  spaces.unite(other.spaces);
  narrow.unite(other.narrow);
  for (axsContentItem const* const item : other.broad)
    if (std::none_of(broad.begin(), broad.end(),
          [&](axsContentItem const* known) { return known->wildcard->spaces == item->wildcard->spaces; }))
      broad.push_back(item);
}

bool axsReach::has(std::uint32_t symbol, std::uint32_t space) const noexcept
{
  return (symbol != axsSymbols::none && names.find(symbol, symbol) != nullptr) ||
         (space != axsSymbols::none && narrow.find(space, space) != nullptr) ||
         std::any_of(
           broad.begin(), broad.end(), [&](axsContentItem const* item) { return item->wildcard->allows(space); });
}

axsReach::Overlap axsReach::overlap(axsReach const& left, axsReach const& right)
{
  if (Overlap const found = overlap_of_names(left, right))
    return found;
  if (Overlap const found = overlap_of_spaces(left.narrow, right.narrow))
    return found;
  if (Overlap const found = overlap_of_spaces(left.spaces, right.narrow))
    return found;
  if (Overlap const found = overlap_of_spaces(left.narrow, right.spaces))
    return found;
  if (Overlap const found = left.overlap_of_broad(right))
    return found;
  Overlap const found = right.overlap_of_broad(left);
  return {found.second, found.first};
}

axsReach::Overlap axsReach::overlap_of_names(axsReach const& left, axsReach const& right)
{
  return overlap_of_spaces(left.names, right.names);
}

axsReach::Overlap axsReach::overlap_of_spaces(axsSymbolSet const& left, axsSymbolSet const& right)
{
  if (left.size() > right.size())
  {
    Overlap const found = overlap_of_spaces(right, left);
    return {found.second, found.first};
  }
  Overlap found;
  left.any_of(
    [&](axsSymbolSet::Span const& span)
    {
      if (axsSymbolSet::Span const* const other = right.find(span.first, span.last))
        found = {span.item, other->item};
      return found.first != nullptr;
    });
  return found;
}

axsReach::Overlap axsReach::overlap_of_broad(axsReach const& other) const
{
  Overlap found;
  for (axsContentItem const* const item : broad)
  {
    // Two of them always have a namespace in common: that of neither.
    if (!other.broad.empty())
      return {item, other.broad.front()};
    auto const is_allowed = [&](axsSymbolSet::Span const& span)
    {
      if (item->wildcard->allows(span.first))
        found = {item, span.item};
      return found.first != nullptr;
    };
    if (other.spaces.any_of(is_allowed) || other.narrow.any_of(is_allowed))
      return found;
  }
  return found;
}
