#include "axsArena.h"

#include "axsHandle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <utility>
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

TEST_F(axsArena_, memory_given_back_in_one_size_serves_any_other)
{
  // Ever longer texts take the place of shorter ones, as many at a time: 125 sizes of a megabyte each.
  std::size_t const live = 1000 * 1000;
  std::vector<void*> blocks;
  std::size_t old_size = 0;
  for (std::size_t size = 8; size <= 1000; size += 8)
  {
    std::vector<void*> next;
    for (std::size_t i = 0; i < live / size; ++i)
    {
      next.push_back(arena.allocate(size));
      std::memset(next.back(), 1, size);
      if (!blocks.empty())
      {
        arena.release(blocks.back(), old_size);
        blocks.pop_back();
      }
    }
    for (void* const block : blocks)
      arena.release(block, old_size);
    blocks = std::move(next);
    old_size = size;
  }
  EXPECT_LT(arena.footprint(), 4 * live);
}

TEST_F(axsArena_, blocks_that_stay_do_not_keep_the_memory_around_them)
{
  // Of every hundred blocks one stays.
  std::vector<std::pair<unsigned char*, std::size_t>> kept;
  std::size_t live = 0;
  std::size_t peak = 0;
  for (std::size_t size = 16; size <= 1000; size += 8)
  {
    std::vector<void*> blocks;
    for (std::size_t i = 0; i < 500 * 1000 / size; ++i)
    {
      void* const block = arena.allocate(size);
      if (i % 100 != 0)
        blocks.push_back(block);
      else
      {
        kept.emplace_back(static_cast<unsigned char*>(block), size);
        std::memset(block, static_cast<int>(size % 251), size);
        live += size;
      }
    }
    peak = std::max(peak, live + 500 * 1000);
    for (void* const block : blocks)
    {
      std::memset(block, 0xFF, size);
      arena.release(block, size);
    }
  }
  EXPECT_LT(arena.footprint(), 8 * peak);
  for (auto const& [block, size] : kept)
    for (std::size_t i = 0; i < size; ++i)
      ASSERT_EQ(block[i], size % 251);
}

TEST_F(axsArena_, what_nobody_uses_any_more_goes_back_to_the_system)
{
  void* const stays = arena.allocate(100);
  std::vector<void*> blocks;
  for (int i = 0; i < 100000; ++i)
    blocks.push_back(arena.allocate(200));
  EXPECT_GT(arena.footprint(), 20000000u);
  for (void* const block : blocks)
    arena.release(block, 200);
  EXPECT_LT(arena.footprint(), 12000000u);
  arena.release(stays, 100);

  // What was kept is used before more is taken.
  std::size_t const before = arena.footprint();
  for (int i = 0; i < 20000; ++i)
    arena.allocate(104);
  EXPECT_EQ(arena.footprint(), before);
}

TEST_F(axsArena_, blocks_of_random_sizes_and_lives_do_not_overlap)
{
  struct Block
  {
    unsigned char* bytes;
    std::size_t size;
    unsigned char mark;
  };
  std::mt19937 random(5);
  std::vector<Block> blocks;
  std::size_t live = 0;
  std::size_t peak = 0;
  for (int step = 0; step < 200000; ++step)
  {
    // It grows for a while and shrinks for a while.
    bool const is_growing = step / 20000 % 2 == 0;
    if (blocks.empty() || random() % 10 < (is_growing ? 7u : 3u))
    {
      std::size_t const size = 1 + (random() % 4 == 0 ? random() % 1200 : random() % 100);
      Block const made = {
        static_cast<unsigned char*>(arena.allocate(size)), size, static_cast<unsigned char>(step % 251)};
      std::memset(made.bytes, made.mark, size);
      blocks.push_back(made);
      live += size;
      peak = std::max(peak, live);
      continue;
    }
    std::swap(blocks[random() % blocks.size()], blocks.back());
    Block const freed = blocks.back();
    blocks.pop_back();
    for (std::size_t i = 0; i < freed.size; ++i)
      ASSERT_EQ(freed.bytes[i], freed.mark);
    if (freed.size <= axsArena::small_limit)
    {
      EXPECT_EQ(&axsArena::tree_of(freed.bytes), axsHandle::node_of(*document));
    }
    arena.release(freed.bytes, freed.size);
    live -= freed.size;
  }
  EXPECT_LT(arena.footprint(), 3 * peak);
}
