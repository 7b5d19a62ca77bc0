#include "axsPageStore.h"

#include "axsPoison.h"

#include <atomic>
#include <iterator>
#include <new>

namespace
{
// Of the system. Where pages come in as much at a time, the system gives them at once if they stand at such a place.
std::size_t const large_page = 2u << 20;

// From here on the heap has each block from the system, and gives it back at once.
std::size_t const smallest = 128 * 1024;

// Of each size one, twice as large as the one before.
std::atomic<char*> kept[6];
std::atomic<bool> is_closed{false};

std::align_val_t alignment_of(std::size_t size) noexcept
{
  return std::align_val_t(size > large_page ? large_page : axsPageStore::unit);
}

// Null for sizes of which none is kept.
std::atomic<char*>* place_for(std::size_t size) noexcept
{
  for (std::size_t i = 0; i < std::size(kept); ++i)
    if (size == smallest << i)
      return &kept[i];
  return nullptr;
}

void free_block(char* memory, std::size_t size) noexcept
{
  ::operator delete(memory, alignment_of(size));
}

// When the library goes, so does what is kept. Documents that go later leave nothing.
struct AtEnd
{
  ~AtEnd()
  {
    is_closed = true;
    for (std::size_t i = 0; i < std::size(kept); ++i)
      if (char* const memory = kept[i].exchange(nullptr))
      {
        axsPoison::remove(memory, smallest << i);
        free_block(memory, smallest << i);
      }
  }
};
AtEnd const at_end;
}

axsPageStore::Block axsPageStore::take(std::size_t size)
{
  std::atomic<char*>* const place = place_for(size);
  char* const memory = place == nullptr ? nullptr : place->exchange(nullptr);
  if (memory == nullptr)
    return {static_cast<char*>(::operator new(size, alignment_of(size))), true};
  axsPoison::remove(memory, size);
  return {memory, false};
}

void axsPageStore::give_back(char* memory, std::size_t size) noexcept
{
  std::atomic<char*>* const place = is_closed ? nullptr : place_for(size);
  if (place == nullptr)
    return free_block(memory, size);
  // Whoever still uses a node of the document that has gone is found out.
  axsPoison::add(memory, size);
  if (char* const other = place->exchange(memory))
  {
    axsPoison::remove(other, size);
    free_block(other, size);
  }
}
