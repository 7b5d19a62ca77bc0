#pragma once

#include "axsPatternProgram.h"
#include "axsPatternReach.h"
#include "axsValueSet.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Matches values with a program that counts nothing, as a deterministic automaton whose states are made when they are first
/// met. They are forgotten when they have become too many, so that memory is bounded while time stays linear in the value.
/// For one thread.
class axsPatternStates
{
public:
  explicit axsPatternStates(axsPatternProgram const& of);

  bool matches(std::string_view value);

  /// How many instructions have been looked at in making states.
  std::uint64_t steps() const noexcept { return reach.steps(); }

  std::size_t memory_taken() const noexcept { return memory; }

  /// What states may take together, in bytes, apart from the newest one.
  static constexpr std::size_t max_memory = 524288;

private:
  using Index = axsPatternProgram::Index;

  static constexpr Index unknown = static_cast<Index>(-1);
  static constexpr Index dead = static_cast<Index>(-2);

  Index start();
  Index make_next(Index& state, Index of_class);
  Index number_of_reached();
  void forget_all_but(Index& state);
  bool is_accepting(Index state) const noexcept { return states[state].front() != 0; }

  axsPatternProgram const& program;
  axsPatternReach reach;
  // A state is the instructions that may be next, after a byte that says whether the value may end.
  axsValueSet states;
  std::vector<Index> transitions; // by state and class
  std::size_t memory = 0;
  Index first = unknown;
  std::string bytes;
  std::vector<Index> sorted;
};
