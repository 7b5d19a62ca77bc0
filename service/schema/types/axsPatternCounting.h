#pragma once

#include "axsPatternProgram.h"
#include "axsPatternReach.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Matches values with a program that counts, following all its instructions together. What one counter counts at the same time
/// is kept as the places at which the counts began, as runs of places, so that a character makes all of them larger at no
/// cost. For one thread.
class axsPatternCounting
{
public:
  explicit axsPatternCounting(axsPatternProgram const& of);

  bool matches(std::string_view value);

  /// How many instructions and counters have been looked at since this was made.
  std::uint64_t steps() const noexcept { return reach.steps() + counter_steps; }

private:
  using Index = axsPatternProgram::Index;

  // An instruction that takes a character, in a round of its loop.
  struct Taking
  {
    std::uint64_t round;
    Index index;
  };

  // Places from `first` to `last` at which a count began.
  struct Run
  {
    std::uint64_t first;
    std::uint64_t last;
  };

  // Runs in their order, those before `begin` being over.
  struct Begun
  {
    std::vector<Run> runs;
    std::size_t begin = 0;

    bool empty() const noexcept { return begin == runs.size(); }
    void clear() noexcept;
    void add(std::uint64_t at);
    void drop_before(std::uint64_t at);
  };

  void step(Index of_class);
  void keep_taking();
  void step_counters(Index of_class);
  bool goes_on(Index counter, Index of_class);
  void begin_counters();

  axsPatternProgram const& program;
  axsPatternReach reach;
  std::uint64_t place = 0; // the number of characters taken
  std::vector<Taking> taking;
  std::vector<Begun> begun;  // by counter
  std::vector<Index> active; // the counters that have begun
  std::vector<Index> full;   // those that have counted enough, by what follows
  std::uint64_t counter_steps = 0;
};
