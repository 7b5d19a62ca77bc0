#include "axsArena.h"

#include <apMemory.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{
std::size_t const max_pages = 256;

// The system gives so much at once, which takes half the time of page by page, and is hardly more than is needed.
std::size_t const filled_at_once = 128 * 1024;

// A document that has taken as much takes large pages, the last of which may be empty for the greater part.
std::size_t const large_arena = 16u << 20;

std::size_t rounded(std::size_t size, std::size_t unit)
{
  return (size + unit - 1) / unit * unit;
}
}

static_assert(axsFreeBlocks::max_units * axsFreeBlocks::granule == axsArena::small_limit);

struct alignas(std::max_align_t) axsArena::LargeBlock
{
  LargeBlock* previous;
  LargeBlock* next;
  std::size_t size;
};

axsArena::axsArena(axsTree& owner) noexcept : tree(&owner) {}

axsArena::~axsArena()
{
  while (newest != nullptr)
  {
    Page* const page = newest;
    newest = page->older;
    std::size_t const size = page->pages * page_size;
    axsPoison::remove(page, size);
    axsPageStore::give_back(reinterpret_cast<char*>(page), size);
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
  if (free_blocks.has(units))
    return free_blocks.take(units);
  if (rest.left() >= bytes)
    return rest.take(bytes);
  if (room.left() >= bytes)
    return room.take(bytes);
  if (void* const block = free_blocks.take_from_larger(units))
    return block;
  if (empty_pages == nullptr && untouched == untouched_end)
    add_pages();
  next_page();
  return room.take(bytes);
}

void axsArena::release(void* block, std::size_t size) noexcept
{
  if (size > small_limit)
    return release_large(block);

  free_blocks.add(block, units_for(size));
  if (free_blocks.size() >= joined_at)
    join_free_blocks();
}

// Costs as much as what has come back since the last time is worth.
void axsArena::join_free_blocks() noexcept
{
  free_blocks.take_joined([this](char* begin, std::size_t size) { add_free(begin, size); });
  give_empty_pages_back();
  std::size_t const used = pages_used * page_size - free_blocks.size();
  joined_at = free_blocks.size() + std::max(used / 4, min_joined);
}

// A stretch of a page, in blocks as large as may be, or the whole page.
void axsArena::add_free(char* begin, std::size_t size) noexcept
{
  // What was left at the end of a page may have been too little for a block.
  if (size + axsFreeBlocks::min_units * granule > page_size - rounded(sizeof(Page), granule))
  {
    auto* const page = reinterpret_cast<Page*>(begin - rounded(sizeof(Page), granule));
    page->next_empty = std::exchange(empty_pages, page);
    ++page->chunk->empty;
    --pages_used;
    return;
  }
  while (size > 0)
  {
    // The last one must not be too small to be one.
    std::size_t const piece =
      size <= small_limit ? size : std::min(small_limit, size - axsFreeBlocks::min_units * granule);
    free_blocks.add(begin, piece / granule);
    begin += piece;
    size -= piece;
  }
}

// Those that came together and are all empty go back to the system, but for the last ones, which are still laid out.
void axsArena::give_empty_pages_back() noexcept
{
  auto const is_given_back = [this](Page const& chunk) { return chunk.empty == chunk.pages && &chunk != newest; };
  for (Page** at = &empty_pages; *at != nullptr;)
    if (is_given_back(*(*at)->chunk))
      *at = (*at)->next_empty;
    else
      at = &(*at)->next_empty;
  for (Page** at = &newest; *at != nullptr;)
  {
    Page* const chunk = *at;
    if (!is_given_back(*chunk))
    {
      at = &chunk->older;
      continue;
    }
    *at = chunk->older;
    std::size_t const size = chunk->pages * page_size;
    taken -= size;
    axsPoison::remove(chunk, size);
    axsPageStore::give_back(reinterpret_cast<char*>(chunk), size);
  }
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
  auto const [memory, is_fresh] = axsPageStore::take(size);
  untouched = memory;
  untouched_end = memory + size;
  filled_end = is_fresh ? untouched : untouched_end;
  if (is_fresh)
    fill_ahead(taken < large_arena ? filled_at_once : size);
  newest = new (memory) Page{tree, nullptr, newest, next_pages, 0, nullptr};
  newest->chunk = newest;
  taken += size;
  next_pages = std::min(next_pages * 2, max_pages);
}

void axsArena::fill_ahead(std::size_t size) noexcept
{
  std::size_t const filled = std::min(size, static_cast<std::size_t>(untouched_end - untouched));
  apMemory::will_fill(untouched, filled);
  filled_end = untouched + filled;
}

// What is left of the page before is for smaller blocks.
void axsArena::next_page() noexcept
{
  if (room.left() > rest.left())
    std::swap(room, rest);
  add_room(room);
  char* const page = fresh_page();
  room = {page + rounded(sizeof(Page), granule), page + page_size};
  axsPoison::add(room.begin, room.left());
}

// One that was emptied before one that has not been used yet.
char* axsArena::fresh_page() noexcept
{
  ++pages_used;
  if (empty_pages != nullptr)
  {
    Page* const page = std::exchange(empty_pages, empty_pages->next_empty);
    --page->chunk->empty;
    return reinterpret_cast<char*>(page);
  }
  if (untouched == filled_end)
    fill_ahead(filled_at_once);
  char* const page = std::exchange(untouched, untouched + page_size);
  if (page != reinterpret_cast<char*>(newest))
    new (page) Page{tree, newest, nullptr, 0, 0, nullptr};
  return page;
}

void axsArena::add_room(Room room_left) noexcept
{
  std::size_t const size = room_left.left();
  if (size >= axsFreeBlocks::min_units * granule)
    free_blocks.add(room_left.take(size), size / granule);
}
