#include "axsCharacterSet.h"

#include <algorithm>
#include <iterator>
#include <utility>

axsCharacterSet axsCharacterSet::of(std::vector<Range> ranges)
{
  std::sort(ranges.begin(), ranges.end());
  axsCharacterSet set;
  for (Range const range : ranges)
  {
    if (!set.ranges.empty() && range.first <= set.ranges.back().last + 1)
      set.ranges.back().last = std::max(set.ranges.back().last, range.last);
    else
      set.ranges.push_back(range);
  }
  return set;
}

axsCharacterSet axsCharacterSet::complement() const
{
  axsCharacterSet set;
  char32_t next = 0;
  for (Range const range : ranges)
  {
    if (range.first > next)
      set.ranges.push_back({next, range.first - 1});
    next = range.last + 1;
  }
  if (next <= largest)
    set.ranges.push_back({next, largest});
  return set;
}

// What is outside of the complement united with the other.
axsCharacterSet axsCharacterSet::without(axsCharacterSet const& other) const
{
  std::vector<Range> outside = complement().ranges;
  outside.insert(outside.end(), other.ranges.begin(), other.ranges.end());
  return of(std::move(outside)).complement();
}

bool axsCharacterSet::contains(char32_t c) const noexcept
{
  auto const after =
    std::upper_bound(ranges.begin(), ranges.end(), c, [](char32_t value, Range range) { return value < range.first; });
  return after != ranges.begin() && c <= std::prev(after)->last;
}
