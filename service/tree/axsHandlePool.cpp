#include "axsHandlePool.h"

#include <cstdlib>
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

void axsHandlePool::abandon() noexcept
{
  abandoned = true;
  if (out == 0)
    delete this;
}

void* axsHandlePool::allocate(std::size_t size)
{
  if (size > limit)
  {
    void* const memory = ::operator new(size);
    ++out;
    return memory;
  }

  std::size_t const units = (size + granule - 1) / granule;
  if (Block* const block = free_blocks[units])
  {
    free_blocks[units] = block->next;
    ++out;
    return block;
  }
  if (static_cast<std::size_t>(room_end - room) < units * granule)
  {
    void* const memory = std::malloc(slab_size);
    if (memory == nullptr)
      throw std::bad_alloc();
    slabs = new (memory) Slab{slabs};
    room = static_cast<char*>(memory) + sizeof(Slab);
    room_end = static_cast<char*>(memory) + slab_size;
  }
  ++out;
  return std::exchange(room, room + units * granule);
}

void axsHandlePool::release(void* block, std::size_t size) noexcept
{
  if (size > limit)
    ::operator delete(block);
  else
  {
    std::size_t const units = (size + granule - 1) / granule;
    free_blocks[units] = new (block) Block{free_blocks[units]};
  }
  if (--out == 0 && abandoned)
    delete this;
}
