#include "axsArena.h"

#include "axsHandle.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace
{
class axsArena_ : public testing::Test
{
protected:
  std::shared_ptr<axmDocument> const document = axsDomDocument::make(APSTRING("uri"));
  axsArena arena{axsDomDocument::of(*axsHandle::node_of(*document))};
};
}

TEST_F(axsArena_, blocks_do_not_overlap)
{
  struct Block
  {
    unsigned char* bytes;
    std::size_t size;
  };
  std::vector<Block> blocks;
  for (std::size_t i = 0; i < 20000; ++i)
  {
    std::size_t const size = 1 + i * 7919 % 1100;
    blocks.push_back({static_cast<unsigned char*>(arena.allocate(size)), size});
    std::memset(blocks.back().bytes, static_cast<int>(i % 251), size);
    if (size <= axsArena::small_limit)
    {
      EXPECT_EQ(&axsArena::tree_of(blocks.back().bytes), axsHandle::node_of(*document));
    }
  }
  for (std::size_t i = 0; i < blocks.size(); ++i)
    for (std::size_t at = 0; at < blocks[i].size; ++at)
      ASSERT_EQ(blocks[i].bytes[at], i % 251) << i;
}

TEST_F(axsArena_, what_is_left_of_a_page_is_for_smaller_blocks)
{
  // A page has 16 KiB, and so has no room for the last of these.
  auto const page_of = [](void const* block) { return reinterpret_cast<std::uintptr_t>(block) / (16 * 1024); };
  auto const first = page_of(arena.allocate(1000));
  for (int i = 1; i < 16; ++i)
    EXPECT_EQ(page_of(arena.allocate(1000)), first);
  auto const next = page_of(arena.allocate(1000));
  EXPECT_NE(next, first);
  EXPECT_EQ(page_of(arena.allocate(100)), first);
  EXPECT_EQ(page_of(arena.allocate(1000)), next);
}

TEST_F(axsArena_, what_was_given_back_is_taken_again)
{
  for (std::size_t const size : {1u, 8u, 100u, 1024u})
  {
    void* const block = arena.allocate(size);
    arena.release(block, size);
    EXPECT_EQ(arena.allocate(size), block);
  }
  std::size_t const before = arena.footprint();
  arena.release(arena.allocate(100000), 100000);
  EXPECT_EQ(arena.footprint(), before);
}
