#include "axsPatternClasses.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace
{
// So many times may intervals be looked at to find those that are alike.
std::size_t const max_looks = 4000000;

std::vector<char32_t> starts_of(std::vector<axsCharacterSet> const& sets)
{
  std::vector<char32_t> starts{0};
  for (axsCharacterSet const& set : sets)
    for (axsCharacterSet::Range const range : set.get())
    {
      starts.push_back(range.first);
      if (range.last < axsCharacterSet::largest)
        starts.push_back(range.last + 1);
    }
  std::sort(starts.begin(), starts.end());
  starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
  return starts;
}
}

axsPatternClasses::axsPatternClasses(std::vector<axsCharacterSet> const& sets) : starts(starts_of(sets))
{
  if (sets.size() * starts.size() <= max_looks)
    merge_alike(sets);
  else
  {
    representatives = starts;
    for (std::size_t i = 0; i < starts.size(); ++i)
      classes.push_back(static_cast<Index>(i));
  }
  for (char32_t c = 0; c < 0x80; ++c)
    of_ascii[c] = of_others(c);
}

axsPatternClasses::Index axsPatternClasses::of_others(char32_t c) const noexcept
{
  auto const after = std::upper_bound(starts.begin(), starts.end(), c);
  return classes[static_cast<std::size_t>(after - starts.begin()) - 1];
}

// Each set splits every class into the characters that it has and those that it has not.
void axsPatternClasses::merge_alike(std::vector<axsCharacterSet> const& sets)
{
  Index const none = std::numeric_limits<Index>::max();
  classes.assign(starts.size(), 0);
  Index count = 1;
  for (axsCharacterSet const& set : sets)
  {
    std::vector<Index> split(std::size_t{2} * count, none);
    Index next = 0;
    auto range = set.get().begin();
    for (std::size_t i = 0; i < starts.size(); ++i)
    {
      while (range != set.get().end() && range->last < starts[i])
        ++range;
      bool const is_inside = range != set.get().end() && range->first <= starts[i];
      Index& target = split[std::size_t{2} * classes[i] + (is_inside ? 1 : 0)];
      if (target == none)
        target = next++;
      classes[i] = target;
    }
    count = next;
  }
  representatives.assign(count, 0);
  for (std::size_t i = 0; i < starts.size(); ++i)
    representatives[classes[i]] = starts[i];
}
