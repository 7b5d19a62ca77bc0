#include "axsHandlePool.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <new>
#include <utility>

namespace
{
std::size_t const slab_size = 4000;
}

struct alignas(16) axsHandlePool::Slab
{
  Slab* older;
};

axsHandlePool* axsHandlePool::make()
{
  return new axsHandlePool();
}

axsHandlePool::~axsHandlePool()
{
  while (slabs != nullptr)
    std::free(std::exchange(slabs, slabs->older));
}

std::size_t axsHandlePool::count_used() const noexcept
{
  std::size_t used = blocks;
  for (Block const* block : free_blocks)
    for (; block != nullptr; block = block->next)
      --used;
  return used;
}

void axsHandlePool::close() noexcept
{
  blocks = 0;
  std::fill(std::begin(free_blocks), std::end(free_blocks), nullptr);
}

void axsHandlePool::abandon() noexcept
{
  is_abandoned = true;
  blocks = count_used();
  if (blocks == 0)
    delete this;
}

void axsHandlePool::one_came_back() noexcept
{
  if (--blocks == 0)
    delete this;
}

void* axsHandlePool::allocate_large(std::size_t size)
{
  void* const memory = ::operator new(size);
  ++blocks;
  return memory;
}

void axsHandlePool::release_large(void* block) noexcept
{
  ::operator delete(block);
  if (!is_abandoned)
    --blocks;
}

void* axsHandlePool::allocate_fresh(std::size_t units)
{
  if (static_cast<std::size_t>(room_end - room) < units * granule)
  {
    void* const memory = std::malloc(slab_size);
    if (memory == nullptr)
      throw std::bad_alloc();
    slabs = new (memory) Slab{slabs};
    room = static_cast<char*>(memory) + sizeof(Slab);
    room_end = static_cast<char*>(memory) + slab_size;
  }
  ++blocks;
  return std::exchange(room, room + units * granule);
}
