#include "axsFreeBlocks.h"

#include <functional>
#include <utility>

void* axsFreeBlocks::take_from_larger(std::size_t units) noexcept
{
  for (std::size_t larger = units + min_units; larger <= max_units; ++larger)
    if (has(larger))
    {
      void* const taken = take(larger);
      add(static_cast<char*>(taken) + units * granule, larger - units);
      return taken;
    }
  return nullptr;
}

// Both are sorted.
axsFreeBlocks::Block* axsFreeBlocks::merged(Block* left, Block* right) noexcept
{
  Block* first = nullptr;
  Block** end = &first;
  while (left != nullptr && right != nullptr)
  {
    Block*& lower = std::less<Block*>()(left, right) ? left : right;
    *end = lower;
    end = &lower->next;
    lower = lower->next;
  }
  *end = left != nullptr ? left : right;
  return first;
}

// Sorted runs of 1, 2, 4 ... blocks are merged as they come.
axsFreeBlocks::Block* axsFreeBlocks::take_sorted() noexcept
{
  std::size_t const doublings = 48;
  Block* runs[doublings] = {};
  for (Block*& list : lists)
    while (list != nullptr)
    {
      axsPoison::remove(list, sizeof(Block));
      Block* run = list;
      list = std::exchange(run->next, nullptr);
      std::size_t at = 0;
      for (; runs[at] != nullptr; ++at)
        run = merged(std::exchange(runs[at], nullptr), run);
      runs[at] = run;
    }
  total = 0;
  Block* all = nullptr;
  for (Block* const run : runs)
    all = merged(all, run);
  return all;
}
