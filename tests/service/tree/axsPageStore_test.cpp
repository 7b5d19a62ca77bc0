#include "axsPageStore.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{
std::size_t const kibibyte = 1024;

bool lies_at_multiple(char const* memory, std::size_t of)
{
  return reinterpret_cast<std::uintptr_t>(memory) % of == 0;
}
}

TEST(axsPageStore, gives_blocks_at_multiples_of_their_unit)
{
  for (std::size_t size = axsPageStore::unit; size <= 8192 * kibibyte; size *= 2)
  {
    axsPageStore::Block const block = axsPageStore::take(size);
    EXPECT_TRUE(lies_at_multiple(block.memory, axsPageStore::unit)) << size;
    EXPECT_TRUE(size <= 2048 * kibibyte || lies_at_multiple(block.memory, 2048 * kibibyte)) << size;
    block.memory[0] = block.memory[size - 1] = 'x';
    axsPageStore::give_back(block.memory, size);
  }
}

TEST(axsPageStore, gives_again_what_came_back_last)
{
  for (std::size_t const size : {128 * kibibyte, 1024 * kibibyte, 4096 * kibibyte})
  {
    axsPageStore::Block const one = axsPageStore::take(size);
    axsPageStore::Block const other = axsPageStore::take(size);
    EXPECT_NE(one.memory, other.memory);
    EXPECT_TRUE(other.is_fresh);
    axsPageStore::give_back(one.memory, size);
    axsPageStore::give_back(other.memory, size);
    axsPageStore::Block const again = axsPageStore::take(size);
    EXPECT_EQ(again.memory, other.memory);
    EXPECT_FALSE(again.is_fresh);
    // Only one was kept.
    axsPageStore::Block const further = axsPageStore::take(size);
    EXPECT_TRUE(further.is_fresh);
    axsPageStore::give_back(again.memory, size);
    axsPageStore::give_back(further.memory, size);
  }
}

TEST(axsPageStore, keeps_no_small_blocks_and_no_larger_ones)
{
  for (std::size_t const size : {16 * kibibyte, 64 * kibibyte, 8192 * kibibyte})
  {
    axsPageStore::give_back(axsPageStore::take(size).memory, size);
    axsPageStore::Block const block = axsPageStore::take(size);
    EXPECT_TRUE(block.is_fresh) << size;
    axsPageStore::give_back(block.memory, size);
  }
}
