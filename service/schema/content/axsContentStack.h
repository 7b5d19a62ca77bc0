#pragma once

#include "axsContentGroup.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

class axsContentAutomaton;

/// Runs the automata of the elements that are open, the innermost last, over their children (cvc-particle,
/// cvc-model-group). A child takes constant time, but for wildcards, and for groups nested in each other, a look at each.
/// Memory in proportion to how deep groups are nested in the models of the open elements.
class axsContentStack
{
public:
  struct Expected
  {
    std::vector<axsContentItem const*> items; // elements and wildcards, in the order of the schema
    bool is_whole = true;                     // false if there are more than are told
    bool may_end = false;
  };

  /// How many ways to count may be followed at once, where a content is (a{2,3}, b?){2,9} and its like.
  static constexpr std::size_t max_ways = 1000;

  /// An element begins whose children the automaton is to check.
  void open(axsContentAutomaton const& automaton);

  /// The element or wildcard particle that takes the next child; null if none does, and all is as it was.
  axsContentItem const* step(std::uint32_t symbol, std::uint32_t space);

  /// Whether the innermost element may end here.
  bool may_end() const;

  /// What may stand here, up to `max_items` of it.
  Expected expected(std::size_t max_items) const;

  /// The innermost element ends.
  void close();

private:
  struct Frame
  {
    axsContentGroup const* group;
    std::uint32_t child; // before_first at the beginning
    std::uint64_t count; // how often the child has begun

    axsContentItem const& item() const noexcept { return group->items[child]; }

    // In some order, for a set of them.
    friend bool operator<(Frame const& left, Frame const& right) noexcept
    {
      if (left.count != right.count)
        return left.count < right.count;
      if (left.child != right.child)
        return left.child < right.child;
      return std::less<axsContentGroup const*>()(left.group, right.group);
    }
  };

  using Frames = std::vector<Frame>;

  struct Run
  {
    std::size_t first_frame;
    std::size_t first_word;
    std::uint32_t required_left; // of the group "all"
    bool is_weak;
  };

  // Where a child can be taken: the frames from `level` on are left, and the one there is at `child`.
  struct Move
  {
    std::size_t level;
    std::uint32_t child;
    std::uint64_t count;
  };

  static constexpr std::uint32_t before_first = static_cast<std::uint32_t>(-1);

  axsContentItem const* step_near(std::uint32_t symbol);
  axsContentItem const* step_weak(std::uint32_t symbol, std::uint32_t space);
  void find_moves(Frames const& from, std::size_t base, std::uint32_t symbol, std::uint32_t space, bool all,
    std::vector<Move>& moves) const;
  axsContentItem const* apply(Frames& to, Move const& move, std::uint32_t symbol, std::uint32_t space);
  bool may_end(Frames const& from, std::size_t base) const;
  bool is_passed(Frame const& frame) const;
  static bool is_covered(Frames const& from, std::size_t level, Move const& inner);
  std::uint32_t find_in_all(Frame const& frame, std::uint32_t symbol, std::uint32_t space) const;
  bool is_seen(std::uint32_t child) const noexcept;
  void enter_all(axsContentGroup const& group);
  void mark_seen(axsContentItem const& item, std::uint32_t child);
  void add_first(axsContentItem const& item, std::size_t max_items, Expected& found) const;
  void add_rest(Frame const& frame, std::size_t max_items, Expected& found) const;

  Frames frames;
  std::vector<Run> runs;
  std::vector<std::uint64_t> seen; // of the groups "all" that are open, a bit an item
  std::vector<Move> found_moves;
  // Of the innermost run that is weak: the other ways in which its children can be counted. Kept with the run.
  std::vector<std::vector<Frames>> ways;
};
