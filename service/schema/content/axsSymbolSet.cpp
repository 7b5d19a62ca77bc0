#include "axsSymbolSet.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace
{
using Span = axsSymbolSet::Span;

bool is_before(Span const& left, Span const& right) noexcept
{
  return std::tie(left.first, left.last) < std::tie(right.first, right.last);
}

bool is_same(Span const& left, Span const& right) noexcept
{
  return left.first == right.first && left.last == right.last;
}
}

std::size_t axsSymbolSet::size() const noexcept
{
  std::size_t sum = 0;
  for (auto const& run : runs)
    sum += run->spans.size();
  return sum;
}

std::shared_ptr<axsSymbolSet::Run const> axsSymbolSet::make_run(std::vector<Span> spans)
{
  auto run = std::make_shared<Run>();
  run->furthest.reserve(spans.size());
  std::uint32_t furthest = 0;
  for (std::uint32_t i = 0; i < spans.size(); ++i)
  {
    if (spans[i].last > spans[furthest].last)
      furthest = i;
    run->furthest.push_back(furthest);
  }
  run->spans = std::move(spans);
  return run;
}

void axsSymbolSet::add(std::vector<Span> spans)
{
  if (spans.empty())
    return;
  std::stable_sort(spans.begin(), spans.end(), is_before);
  spans.erase(std::unique(spans.begin(), spans.end(), is_same), spans.end());
  add_run(make_run(std::move(spans)));
}

void axsSymbolSet::unite(axsSymbolSet const& other)
{
  if (runs.empty())
  {
    runs = other.runs;
    return;
  }
  for (auto const& run : other.runs)
    add_run(run);
}

void axsSymbolSet::add_run(std::shared_ptr<Run const> run)
{
  if (std::find(runs.begin(), runs.end(), run) != runs.end())
    return;
  while (!runs.empty() && runs.back()->spans.size() < 2 * run->spans.size())
  {
    std::vector<Span> merged;
    Run const& other = *runs.back();
    merged.reserve(other.spans.size() + run->spans.size());
    std::merge(other.spans.begin(), other.spans.end(), run->spans.begin(), run->spans.end(), std::back_inserter(merged),
      is_before);
    merged.erase(std::unique(merged.begin(), merged.end(), is_same), merged.end());
    runs.pop_back();
    run = make_run(std::move(merged));
  }
  runs.push_back(std::move(run));
}

axsSymbolSet::Span const* axsSymbolSet::find(std::uint32_t first, std::uint32_t last) const noexcept
{
  for (auto const& run : runs)
  {
    auto const end = std::upper_bound(run->spans.begin(), run->spans.end(), last,
      [](std::uint32_t value, Span const& span) { return value < span.first; });
    if (end == run->spans.begin())
      continue;
    Span const& candidate = run->spans[run->furthest[static_cast<std::size_t>(end - run->spans.begin() - 1)]];
    if (candidate.last >= first)
      return &candidate;
  }
  return nullptr;
}
