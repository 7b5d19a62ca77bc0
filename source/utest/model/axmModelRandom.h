#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

// Numbers that look drawn but are the same for the same seed on every system (SplitMix64). Not installed.
class axmModelRandom
{
public:
  explicit axmModelRandom(std::uint64_t seed) : state(seed) {}

  // The numbers that two bytes each say, as long as there are such; those of a seed after them.
  axmModelRandom(std::uint8_t const* given, std::size_t size) : state(size), bytes(given), pairs(size / 2) {}

  std::uint64_t next()
  {
    if (pairs > 0)
      return next_pair();
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state;
    mixed = (mixed ^ mixed >> 30U) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ mixed >> 27U) * 0x94D049BB133111EBU;
    return mixed ^ mixed >> 31U;
  }

  // 0 to `count` - 1; `count` is not 0.
  int below(int count) { return static_cast<int>(next() % static_cast<std::uint64_t>(count)); }

  // True in one of `count` cases.
  bool once_in(int count) { return below(count) == 0; }

  template <class List>
  auto const& one_of(List const& list)
  {
    return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
  }

private:
  std::uint64_t next_pair()
  {
    --pairs;
    unsigned const low = *bytes++;
    unsigned const high = *bytes++;
    return high << 8U | low;
  }

  std::uint64_t state;
  std::uint8_t const* bytes = nullptr;
  std::size_t pairs = 0;
};
