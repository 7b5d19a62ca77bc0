#pragma once

#include "axsCharacterSet.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

/// A regular expression as its parts, which lie in one array and refer to each other by number, parts before what is made of
/// them. Costs say how large the automaton will be, before it is built.
class axsPatternTree
{
public:
  using Index = std::uint32_t;
  static constexpr Index none = std::numeric_limits<Index>::max();
  static constexpr std::uint64_t unbounded = std::numeric_limits<std::uint64_t>::max();

  enum class Kind : unsigned char
  {
    empty,
    set,
    sequence,
    choice,
    repeat
  };

  struct Node
  {
    Kind kind = Kind::empty;
    bool may_be_empty = true;
    Index set = 0;         // of a set: its number
    Index first = none;    // the first part
    Index next = none;     // the next part of what this one is part of
    std::uint64_t min = 0; // of a repeat
    std::uint64_t max = 0;
    bool is_counted = false;        // of a repeat: whether counting takes fewer instructions
    std::uint64_t cost = 1;         // the instructions, all repeats written out
    std::uint64_t counted_cost = 1; // the same with repeats counted
  };

  Index add_empty();
  Index add_set(Index set);

  /// Of parts that are linked (append), from `first` on, which are at least two.
  Index add_sequence(Index first);
  Index add_choice(Index first);

  /// `part` from `min` to `max` times, made as small as is possible.
  Index add_repeat(Index part, std::uint64_t min, std::uint64_t max);

  /// Links `part` after `last`.
  void link(Index last, Index part) { nodes[last].next = part; }

  Node const& operator[](Index index) const noexcept { return nodes[index]; }

  /// Adds a set of characters, and returns its number.
  Index add_characters(axsCharacterSet const& set);

  /// The sets by their numbers, which are moved out.
  std::vector<axsCharacterSet> take_characters() noexcept { return std::move(sets); }

  /// The part that is the whole expression.
  Index root() const noexcept { return whole; }
  void set_root(Index node) noexcept { whole = node; }

private:
  Index add(Node const& node);
  Index add_group(Kind kind, Index first);
  static void set_costs(Node& repeat, Node const& part) noexcept;

  std::vector<Node> nodes;
  std::vector<axsCharacterSet> sets;
  Index whole = none;
};
