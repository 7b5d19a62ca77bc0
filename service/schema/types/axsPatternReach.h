#pragma once

#include "axsPatternProgram.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// What instructions lead to without a character being taken: an set of those that take, count or match, each once. For one
/// thread.
class axsPatternReach
{
public:
  using Index = axsPatternProgram::Index;

  explicit axsPatternReach(axsPatternProgram const& of) : program(of), marks(of.size(), 0) {}

  /// Begins anew.
  void clear();

  /// Adds what is reached from the instruction, itself included. A counter that may take nothing is passed, too.
  void add(Index from);

  /// The instructions that take a character, in the order in which they came.
  std::vector<Index> const& takes() const noexcept { return taking; }

  /// The counters that begin, by their numbers.
  std::vector<Index> const& counters() const noexcept { return counting; }

  bool matches() const noexcept { return matched; }

  /// How many instructions have been looked at since this was made.
  std::uint64_t steps() const noexcept { return looked_at; }

private:
  void visit(Index index);

  axsPatternProgram const& program;
  std::vector<std::uint32_t> marks; // of the round in which an instruction was last reached
  std::uint32_t round = 1;
  std::vector<Index> waiting;
  std::vector<Index> taking;
  std::vector<Index> counting;
  bool matched = false;
  std::uint64_t looked_at = 0;
};
