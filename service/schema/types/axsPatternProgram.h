#pragma once

#include "axsCharacterSet.h"
#include "axsPattern.h"
#include "axsPatternClasses.h"
#include "axsPatternTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// A regular expression as a nondeterministic automaton. Repeats are written out, unless that is long; then those are counted
/// that do not lie in others. Immutable, shared between threads.
class axsPatternProgram
{
public:
  using Index = std::uint32_t;

  enum class Operation : unsigned char
  {
    take,  // a character of the set `number`, then on at `next`
    count, // by the counter `number`, then on at `next`
    split, // on at `next` and at `other`
    enter, // a loop, to its first round at `next`; or past it, at `other`
    again, // if the loop `number` has rounds left, to the next one at `next`; or past it, at `other`
    match
  };

  struct Instruction
  {
    Operation operation = Operation::match;
    Index number = 0;
    Index next = 0;
    Index other = 0;
  };

  /// Takes characters of the set, as many as one likes from `min` to `max`.
  struct Counter
  {
    std::uint64_t min = 0;
    std::uint64_t max = 0;
    Index set = 0;
    Index next = 0;
  };

  /// How many instructions an expression may need.
  static constexpr std::uint64_t max_instructions = 500000;

  /// Up to so many, everything is written out.
  static constexpr std::uint64_t max_written_out = 1000;

  /// Null, with the fault told, if the expression is too large.
  static std::unique_ptr<axsPatternProgram const> build(axsPatternTree&& tree, axsPattern::Fault& fault);

  Index start() const noexcept { return first; }
  Instruction const& operator[](Index index) const noexcept { return instructions[index]; }
  std::size_t size() const noexcept { return instructions.size(); }
  std::vector<Counter> const& counters() const noexcept { return counting; }

  /// The rounds that a loop has at most, by its number.
  std::vector<std::uint64_t> const& loops() const noexcept { return rounds; }

  bool counts() const noexcept { return !counting.empty() || !rounds.empty(); }
  axsPatternClasses const& classes() const noexcept { return alike; }

  /// Whether a set has the characters of a class.
  bool has(Index set, Index of_class) const noexcept { return sets[set].contains(alike.representative(of_class)); }

private:
  explicit axsPatternProgram(std::vector<axsCharacterSet>&& of);

  Index add(Instruction const& instruction);
  Index add_loop(std::uint64_t max_rounds);
  Index add_counter(axsPatternTree::Node const& repeat, Index set, Index next);

  std::vector<axsCharacterSet> sets;
  axsPatternClasses alike;
  std::vector<Instruction> instructions;
  std::vector<Counter> counting;
  std::vector<std::uint64_t> rounds;
  Index first = 0;

  friend class axsPatternWriter;
};
