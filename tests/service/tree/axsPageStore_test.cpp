#include "axsPageStore.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <vector>

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

namespace
{
// How many of so many blocks that come back are given again.
std::size_t kept_of(std::size_t count, std::size_t size)
{
  std::vector<axsPageStore::Block> blocks;
  for (std::size_t i = 0; i < count; ++i)
    blocks.push_back(axsPageStore::take(size));
  std::set<char*> given;
  for (axsPageStore::Block const& block : blocks)
  {
    EXPECT_TRUE(given.insert(block.memory).second);
    axsPageStore::give_back(block.memory, size);
  }
  std::size_t kept = 0;
  for (axsPageStore::Block& block : blocks)
  {
    block = axsPageStore::take(size);
    EXPECT_TRUE(block.is_fresh || given.count(block.memory) == 1);
    kept += block.is_fresh ? 0 : 1;
  }
  for (axsPageStore::Block const& block : blocks)
    axsPageStore::give_back(block.memory, size);
  return kept;
}
}

TEST(axsPageStore, gives_again_what_came_back)
{
  for (std::size_t size = 128 * kibibyte; size <= 2048 * kibibyte; size *= 2)
    EXPECT_EQ(kept_of(3, size), 1u) << size;
}

TEST(axsPageStore, gives_again_several_of_the_largest)
{
  EXPECT_EQ(kept_of(6, 4096 * kibibyte), 4u);
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
