#include "axsContentStack.h"

#include "axsContentAutomaton.h"

#include <algorithm>
#include <set>

namespace
{
std::size_t const bits = 64;

// More steps to find out what is expected would take longer than a message is worth.
std::size_t const max_looks = 10000;

// One more. Where there is no upper bound, what is above the lower one makes no difference.
std::uint64_t counted(axsContentItem const& item, std::uint64_t count) noexcept
{
  return item.max == axsParticle::unbounded && count >= item.min ? count : count + 1;
}
}

void axsContentStack::open(axsContentAutomaton const& automaton)
{
  axsContentGroup const& top = automaton.content();
  bool const is_weak = top.is_weak;
  runs.push_back({frames.size(), seen.size(), 0, is_weak});
  frames.push_back({&top, before_first, 0});
  if (is_weak)
    ways.emplace_back();
}

void axsContentStack::close()
{
  Run const& run = runs.back();
  frames.resize(run.first_frame);
  seen.resize(run.first_word);
  if (run.is_weak)
    ways.pop_back();
  runs.pop_back();
}

axsContentItem const* axsContentStack::step(std::uint32_t symbol, std::uint32_t space)
{
  if (runs.back().is_weak)
    return step_weak(symbol, space);
  if (axsContentItem const* const near = step_near(symbol))
    return near;
  found_moves.clear();
  find_moves(frames, runs.back().first_frame, symbol, space, false, found_moves);
  return found_moves.empty() ? nullptr : apply(frames, found_moves.front(), symbol, space);
}

// Most children are of the same element particle as the one before, or of the next one in a sequence. Others are left to
// find_moves(), which decides the same where no two particles compete for a child (cos-nonambig).
axsContentItem const* axsContentStack::step_near(std::uint32_t symbol)
{
  Frame& frame = frames.back();
  axsContentGroup const& group = *frame.group;
  if (group.is_all())
    return nullptr;
  std::uint32_t next = 0;
  if (frame.child != before_first)
  {
    axsContentItem const& item = frame.item();
    if (frame.count < item.max && item.is_named(symbol))
    {
      frame.count = counted(item, frame.count);
      return &item;
    }
    if (frame.count < item.min || !group.is_sequence())
      return nullptr;
    next = frame.child + 1;
  }
  if (!group.is_sequence() || next == group.items.size() || !group.items[next].is_named(symbol))
    return nullptr;
  frame.child = next;
  frame.count = 1;
  return &group.items[next];
}

// A child can be counted in several ways, of which a later child may refuse some: all that differ are followed.
axsContentItem const* axsContentStack::step_weak(std::uint32_t symbol, std::uint32_t space)
{
  std::size_t const base = runs.back().first_frame;
  auto const first = frames.begin() + static_cast<std::ptrdiff_t>(base);
  std::vector<Frames> before = ways.back();
  before.insert(before.begin(), Frames(first, frames.end()));

  axsContentItem const* taker = nullptr;
  std::vector<Frames> after;
  auto const is_less = [&](std::size_t left, std::size_t right) { return after[left] < after[right]; };
  std::set<std::size_t, decltype(is_less)> known(is_less);
  for (Frames const& way : before)
  {
    found_moves.clear();
    find_moves(way, 0, symbol, space, true, found_moves);
    for (Move const& move : found_moves)
    {
      Frames next = way;
      axsContentItem const* const item = apply(next, move, symbol, space);
      taker = taker == nullptr ? item : taker;
      if (after.size() == max_ways)
        continue;
      after.push_back(std::move(next));
      if (!known.insert(after.size() - 1).second)
        after.pop_back();
    }
  }
  if (after.empty())
    return nullptr;
  frames.resize(base);
  frames.insert(frames.end(), after.front().begin(), after.front().end());
  after.erase(after.begin());
  ways.back() = std::move(after);
  return taker;
}

// From the innermost group outwards: once more the item that the last child was of, or one that follows it.
void axsContentStack::find_moves(Frames const& from, std::size_t base, std::uint32_t symbol, std::uint32_t space,
  bool all, std::vector<Move>& moves) const
{
  for (std::size_t level = from.size(); level-- > base;)
  {
    Frame const& frame = from[level];
    axsContentGroup const& group = *frame.group;
    auto const count = static_cast<std::uint32_t>(group.items.size());
    bool const has_begun = frame.child != before_first;
    if (has_begun && frame.count < frame.item().max && group.begins(frame.item(), symbol, space) &&
        (moves.empty() || !is_covered(from, level, moves.back())))
    {
      moves.push_back({level, frame.child, counted(frame.item(), frame.count)});
      if (!all)
        return;
    }
    if (has_begun && frame.count < frame.item().min)
      return;
    std::uint32_t next = count;
    if (group.is_sequence())
      next = group.find(frame.child + 1, symbol, space);
    else if (group.is_all())
      next = find_in_all(frame, symbol, space);
    if (next < count)
    {
      moves.push_back({level, next, 1});
      if (!all)
        return;
    }
    if (!is_passed(frame))
      return;
  }
}

// Whether to begin the item at `level` once more is of no use where the child can be taken further in, by `inner`. That is
// so when this item has occurred often enough, and it can still be begun as well a few children later, or need not be: where
// the items in between are satisfied by occurring once; or, in the group right below, the item that goes on leaves enough of
// its occurrences for a second one that would begin here.
bool axsContentStack::is_covered(Frames const& from, std::size_t level, Move const& inner)
{
  if (from[level].count < from[level].item().min)
    return false;
  axsContentItem const& item = from[inner.level].group->items[inner.child];
  bool const leaves_enough = inner.count - 1 <= item.max - item.min;
  if (inner.level == level + 1 && leaves_enough)
    return true;
  return item.min <= 1 && std::all_of(from.begin() + static_cast<std::ptrdiff_t>(level) + 1,
                            from.begin() + static_cast<std::ptrdiff_t>(inner.level),
                            [](Frame const& frame) { return frame.item().min <= 1; });
}

// Whether what follows in the group may be missing.
bool axsContentStack::is_passed(Frame const& frame) const
{
  axsContentGroup const& group = *frame.group;
  if (group.is_sequence())
    return group.next_required[frame.child + 1] == group.items.size();
  return group.is_all() ? runs.back().required_left == 0 : frame.child != before_first || group.nullable;
}

axsContentItem const* axsContentStack::apply(Frames& to, Move const& move, std::uint32_t symbol, std::uint32_t space)
{
  to.resize(move.level + 1);
  to.back().child = move.child;
  to.back().count = move.count;
  for (;;)
  {
    Frame const& frame = to.back();
    axsContentItem const& item = frame.item();
    if (frame.group->is_all())
      mark_seen(item, frame.child);
    if (item.group == nullptr)
      return &item;
    if (item.group->is_all())
      enter_all(*item.group);
    to.push_back({item.group, item.group->find(0, symbol, space), 1});
  }
}

void axsContentStack::enter_all(axsContentGroup const& group)
{
  Run& run = runs.back();
  run.required_left = group.required;
  seen.resize(run.first_word);
  seen.resize(run.first_word + (group.items.size() + bits - 1) / bits, 0);
}

bool axsContentStack::is_seen(std::uint32_t child) const noexcept
{
  return (seen[runs.back().first_word + child / bits] >> child % bits & 1) != 0;
}

void axsContentStack::mark_seen(axsContentItem const& item, std::uint32_t child)
{
  if (is_seen(child))
    return;
  seen[runs.back().first_word + child / bits] |= std::uint64_t{1} << child % bits;
  if (!item.nullable)
    --runs.back().required_left;
}

// Each item of a group "all" occurs once at most, and no two take the same name.
std::uint32_t axsContentStack::find_in_all(Frame const& frame, std::uint32_t symbol, std::uint32_t space) const
{
  std::uint32_t const found = frame.group->find(0, symbol, space);
  auto const count = static_cast<std::uint32_t>(frame.group->items.size());
  return found < count && is_seen(found) ? count : found;
}

bool axsContentStack::may_end() const
{
  if (may_end(frames, runs.back().first_frame))
    return true;
  return runs.back().is_weak &&
         std::any_of(ways.back().begin(), ways.back().end(), [this](Frames const& way) { return may_end(way, 0); });
}

bool axsContentStack::may_end(Frames const& from, std::size_t base) const
{
  for (std::size_t level = from.size(); level-- > base;)
  {
    Frame const& frame = from[level];
    if ((frame.child != before_first && frame.count < frame.item().min) || !is_passed(frame))
      return false;
  }
  return true;
}

axsContentStack::Expected axsContentStack::expected(std::size_t max_items) const
{
  Expected found;
  for (std::size_t level = frames.size(); level-- > runs.back().first_frame;)
  {
    Frame const& frame = frames[level];
    bool const has_begun = frame.child != before_first;
    if (has_begun && frame.count < frame.item().max)
      add_first(frame.item(), max_items, found);
    if (has_begun && frame.count < frame.item().min)
      return found;
    add_rest(frame, max_items, found);
    if (!is_passed(frame))
      return found;
  }
  found.may_end = true;
  return found;
}

void axsContentStack::add_rest(Frame const& frame, std::size_t max_items, Expected& found) const
{
  axsContentGroup const& group = *frame.group;
  auto const count = static_cast<std::uint32_t>(group.items.size());
  if (group.is_sequence())
    for (std::uint32_t i = frame.child + 1;
         i < std::min(group.next_required[frame.child + 1] + 1, count) && found.is_whole; ++i)
      add_first(group.items[i], max_items, found);
  if (group.is_all())
    for (std::uint32_t i = 0; i < count && found.is_whole; ++i)
      if (!is_seen(i))
        add_first(group.items[i], max_items, found);
}

void axsContentStack::add_first(axsContentItem const& outermost, std::size_t max_items, Expected& found) const
{
  std::vector<axsContentItem const*> waiting{&outermost};
  for (std::size_t looks = 0; !waiting.empty() && found.is_whole; ++looks)
  {
    axsContentItem const& item = *waiting.back();
    waiting.pop_back();
    found.is_whole = found.items.size() < max_items && looks < max_looks;
    if (item.group == nullptr)
    {
      if (found.is_whole && std::find(found.items.begin(), found.items.end(), &item) == found.items.end())
        found.items.push_back(&item);
      continue;
    }
    axsContentGroup const& group = *item.group;
    std::size_t end = group.items.size();
    if (group.is_sequence() && end > 0)
      end = std::min<std::size_t>(group.next_required[0] + std::size_t{1}, end);
    while (end-- > 0)
      waiting.push_back(&group.items[end]);
  }
}
