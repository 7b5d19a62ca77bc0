#include "axsPatternCounting.h"

#include "axsCodePoint.h"

#include <algorithm>

void axsPatternCounting::Begun::clear() noexcept
{
  runs.clear();
  begin = 0;
}

void axsPatternCounting::Begun::add(std::uint64_t at)
{
  if (!empty() && runs.back().last + 1 >= at)
    runs.back().last = at;
  else
    runs.push_back({at, at});
}

void axsPatternCounting::Begun::drop_before(std::uint64_t at)
{
  while (!empty() && runs[begin].last < at)
    ++begin;
  if (empty())
    return clear();
  runs[begin].first = std::max(runs[begin].first, at);
  // What is over is given back once it is more than what is not.
  if (begin > 16 && begin * 2 > runs.size())
  {
    runs.erase(runs.begin(), runs.begin() + static_cast<std::ptrdiff_t>(begin));
    begin = 0;
  }
}

axsPatternCounting::axsPatternCounting(axsPatternProgram const& of)
  : program(of),
    reach(of),
    begun(of.counters().size())
{
}

bool axsPatternCounting::matches(std::string_view value)
{
  for (Index const counter : active)
    begun[counter].clear();
  active.clear();
  place = 0;
  reach.clear();
  reach.add(program.start(), 0);
  begin_counters();
  for (std::size_t at = 0; at < value.size();)
  {
    char32_t const c = axsCodePoint::next(value, at);
    if (c > axsCharacterSet::largest)
      return false;
    step(program.classes().of(c));
    if (reach.takes().empty() && active.empty() && !reach.matches())
      return false;
  }
  return reach.matches();
}

void axsPatternCounting::step(Index of_class)
{
  ++place;
  keep_taking();
  reach.clear();
  step_counters(of_class);
  for (Index const next : full)
    reach.add(next, 0);
  for (Taking const& each : taking)
  {
    ++counter_steps;
    if (program.has(program[each.index].number, of_class))
      reach.add(program[each.index].next, each.round);
  }
  begin_counters();
}

// In ascending order of rounds, as reaching asks for.
void axsPatternCounting::keep_taking()
{
  taking.clear();
  for (Index const index : reach.takes())
    taking.push_back({reach.round_of(index), index});
  if (!program.loops().empty())
    std::sort(
      taking.begin(), taking.end(), [](Taking const& left, Taking const& right) { return left.round < right.round; });
}

// All counts are one larger, or over.
void axsPatternCounting::step_counters(Index of_class)
{
  full.clear();
  counter_steps += active.size();
  auto const is_over = [this, of_class](Index counter) { return !goes_on(counter, of_class); };
  active.erase(std::remove_if(active.begin(), active.end(), is_over), active.end());
}

bool axsPatternCounting::goes_on(Index counter, Index of_class)
{
  axsPatternProgram::Counter const& bounds = program.counters()[counter];
  Begun& places = begun[counter];
  if (!program.has(bounds.set, of_class))
  {
    places.clear();
    return false;
  }
  if (bounds.max < place)
    places.drop_before(place - bounds.max);
  if (places.empty())
    return false;
  // The oldest one has counted most.
  if (place - places.runs[places.begin].first >= bounds.min)
    full.push_back(bounds.next);
  return true;
}

void axsPatternCounting::begin_counters()
{
  for (Index const counter : reach.counters())
  {
    Begun& places = begun[counter];
    bool const is_new = places.empty();
    if (is_new)
      active.push_back(counter);
    // Of counts without end, the oldest one is also the last.
    if (is_new || program.counters()[counter].max != axsPatternTree::unbounded)
      places.add(place);
  }
}
