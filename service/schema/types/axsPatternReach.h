#pragma once

#include "axsPatternProgram.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// What instructions lead to without a character being taken: those that take, count or match, each once. In a loop, an
/// instruction is reached with the number of its round. Of several rounds the lowest one counts: whatever the others can still
/// take, it can take, too. For one thread.
class axsPatternReach
{
public:
  using Index = axsPatternProgram::Index;

  explicit axsPatternReach(axsPatternProgram const& of);

  /// Begins anew.
  void clear();

  /// Adds what is reached from the instruction in the round, itself included; outside of loops, that is 0. A counter that
  /// may take nothing is passed, too. What is added in a lower round than before takes its place, so that adding in
  /// ascending order of rounds looks at no instruction more than twice.
  void add(Index from, std::uint64_t in_round);

  /// The round in which an instruction was reached.
  std::uint64_t round_of(Index index) const noexcept { return rounds.empty() ? 0 : rounds[index]; }

  /// The instructions that take a character, in the order in which they came.
  std::vector<Index> const& takes() const noexcept { return taking; }

  /// The counters that begin, by their numbers.
  std::vector<Index> const& counters() const noexcept { return counting; }

  bool matches() const noexcept { return matched; }

  /// How many instructions have been looked at since this was made.
  std::uint64_t steps() const noexcept { return looked_at; }

private:
  struct Waiting
  {
    Index index;
    std::uint64_t round;
  };

  bool mark(Index index, std::uint64_t in_round);
  void visit(Index index, std::uint64_t in_round, bool is_new);

  axsPatternProgram const& program;
  std::vector<std::uint32_t> marks;  // the pass in which an instruction was last reached
  std::vector<std::uint64_t> rounds; // and the round; empty where there are no loops
  std::uint32_t pass = 1;
  std::vector<Waiting> waiting;
  std::vector<Index> taking;
  std::vector<Index> counting;
  bool matched = false;
  std::uint64_t looked_at = 0;
};
