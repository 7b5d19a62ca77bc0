#pragma once

#include "axsPoison.h"

#include <cstddef>
#include <new>

/// The small blocks of an arena that nobody uses, by their size. Those that lie beside each other can be joined, so that
/// what was given back in one size is of use in another one. Sizes are in units of `granule` bytes.
///
/// Adding and taking cost a constant time, taking from a larger one a step for each size, joining n blocks O(n log n).
/// Takes no memory of its own.
class axsFreeBlocks
{
public:
  static constexpr std::size_t granule = 8;
  /// What a block needs to lie here.
  static constexpr std::size_t min_units = 2;
  static constexpr std::size_t max_units = 128;

  /// Of all of them, in bytes.
  std::size_t size() const noexcept { return total; }

  bool has(std::size_t units) const noexcept { return lists[units] != nullptr; }

  void add(void* memory, std::size_t units) noexcept
  {
    lists[units] = new (memory) Block{lists[units], units};
    total += units * granule;
    axsPoison::add(memory, units * granule);
  }

  /// One of those that there are.
  void* take(std::size_t units) noexcept
  {
    Block* const taken = lists[units];
    axsPoison::remove(taken, units * granule);
    lists[units] = taken->next;
    total -= units * granule;
    return taken;
  }

  /// The beginning of a larger one, the rest of which stays; null if there is none.
  void* take_from_larger(std::size_t units) noexcept;

  /// Takes all out and tells `each` of each stretch that they make, in the order of their addresses, by its beginning and
  /// its size in bytes. `each` may add what it is told of.
  template <class Each>
  void take_joined(Each each) noexcept
  {
    for (Block* at = take_sorted(); at != nullptr;)
    {
      char* const begin = reinterpret_cast<char*>(at);
      char* end = begin;
      for (; at != nullptr && reinterpret_cast<char*>(at) == end; at = at->next)
        end += at->units * granule;
      axsPoison::remove(begin, static_cast<std::size_t>(end - begin));
      each(begin, static_cast<std::size_t>(end - begin));
    }
  }

private:
  struct Block
  {
    Block* next;
    std::size_t units;
  };

  static Block* merged(Block* left, Block* right) noexcept;
  Block* take_sorted() noexcept;

  Block* lists[max_units + 1] = {};
  std::size_t total = 0;
};
