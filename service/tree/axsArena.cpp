#include "axsArena.h"

#include <apMemory.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{
std::size_t const max_pages = 256;

// Of the system. Where pages come in as much at a time, the system gives them at once if they stand at such a place.
std::size_t const large_page = 2u << 20;

std::size_t rounded(std::size_t size, std::size_t unit)
{
  return (size + unit - 1) / unit * unit;
}
}

struct axsArena::FreeBlock
{
  FreeBlock* next;
};

struct alignas(std::max_align_t) axsArena::LargeBlock
{
  LargeBlock* previous;
  LargeBlock* next;
  std::size_t size;
};

std::align_val_t axsArena::alignment_of(std::size_t size) noexcept
{
  return std::align_val_t(size > large_page ? large_page : page_size);
}

axsArena::axsArena(axsTree& owner) noexcept : tree(&owner) {}

axsArena::~axsArena()
{
  while (newest != nullptr)
  {
    Page* const page = newest;
    newest = page->older;
    axsPoison::remove(page, page->pages * page_size);
    ::operator delete(page, alignment_of(page->pages * page_size));
  }
  while (large != nullptr)
    std::free(std::exchange(large, large->next));
}

void* axsArena::allocate_elsewhere(std::size_t size)
{
  if (size > small_limit)
    return allocate_large(size);

  std::size_t const units = units_for(size);
  std::size_t const bytes = units * granule;
  if (FreeBlock* const block = free_blocks[units])
  {
    axsPoison::remove(block, bytes);
    free_blocks[units] = block->next;
    return block;
  }
  if (rest.left() >= bytes)
    return rest.take(bytes);
  if (untouched == untouched_end)
    add_pages();
  next_page();
  return room.take(bytes);
}

void axsArena::release(void* block, std::size_t size) noexcept
{
  if (size > small_limit)
    return release_large(block);

  std::size_t const units = units_for(size);
  free_blocks[units] = new (block) FreeBlock{free_blocks[units]};
  axsPoison::add(block, units * granule);
}

void* axsArena::allocate_large(std::size_t size)
{
  void* const memory = std::malloc(sizeof(LargeBlock) + size);
  if (memory == nullptr)
    throw std::bad_alloc();
  large = new (memory) LargeBlock{nullptr, large, size};
  if (large->next != nullptr)
    large->next->previous = large;
  taken += size;
  return large + 1;
}

void axsArena::release_large(void* block) noexcept
{
  LargeBlock* const released = static_cast<LargeBlock*>(block) - 1;
  if (released->next != nullptr)
    released->next->previous = released->previous;
  (released->previous == nullptr ? large : released->previous->next) = released->next;
  taken -= released->size;
  std::free(released);
}

// A document of a few nodes takes one page, a large one takes many at a time.
void axsArena::add_pages()
{
  std::size_t const size = next_pages * page_size;
  auto* const memory = static_cast<char*>(::operator new(size, alignment_of(size)));
  if (size > large_page)
    apMemory::will_fill(memory, size);
  newest = new (memory) Page{tree, newest, next_pages};
  untouched = memory;
  untouched_end = memory + size;
  taken += size;
  next_pages = std::min(next_pages * 2, max_pages);
}

// What is left of the page before is for smaller blocks.
void axsArena::next_page() noexcept
{
  if (room.left() > rest.left())
    rest = room;
  if (untouched != reinterpret_cast<char*>(newest))
    new (untouched) Page{tree, nullptr, 0};
  room = {untouched + rounded(sizeof(Page), granule), untouched + page_size};
  untouched = room.end;
  axsPoison::add(room.begin, room.left());
}
