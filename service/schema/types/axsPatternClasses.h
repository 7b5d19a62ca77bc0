#pragma once

#include "axsCharacterSet.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The characters parted into classes that some sets do not tell apart, so that an automaton over these sets has to know of a
/// character only its class. Immutable.
class axsPatternClasses
{
public:
  using Index = std::uint32_t;

  /// Takes a time that grows with the ranges of the sets, at most; where telling which characters are alike would take
  /// longer, some that are alike are in different classes.
  explicit axsPatternClasses(std::vector<axsCharacterSet> const& sets);

  std::size_t count() const noexcept { return representatives.size(); }

  /// The class of a character, at most axsCharacterSet::largest.
  Index of(char32_t c) const noexcept { return c < 0x80 ? of_ascii[c] : of_others(c); }

  /// A character of the class.
  char32_t representative(Index of) const noexcept { return representatives[of]; }

private:
  Index of_others(char32_t c) const noexcept;
  void merge_alike(std::vector<axsCharacterSet> const& sets);

  std::vector<char32_t> starts; // of the intervals in which all are alike
  std::vector<Index> classes;   // of the intervals
  std::vector<char32_t> representatives;
  Index of_ascii[0x80] = {};
};
