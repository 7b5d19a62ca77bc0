#include "axsPageStore.h"

#include "axsPoison.h"

#include <atomic>
#include <new>

namespace
{
// Of the system. Where pages come in as much at a time, the system gives them at once if they stand at such a place.
std::size_t const large_page = 2u << 20;

// A block that is kept, or room for one: the heap has each of these sizes from the system, and gives it back at once.
struct Slot
{
  std::size_t size;
  std::atomic<char*> memory{nullptr};
};

std::size_t constexpr kibibyte = 1024;
std::size_t constexpr largest = 4096 * kibibyte;

// Of the largest several: documents take those again and again.
Slot slots[] = {{128 * kibibyte}, {256 * kibibyte}, {512 * kibibyte}, {1024 * kibibyte}, {2048 * kibibyte}, {largest},
  {largest}, {largest}, {largest}};
std::atomic<bool> is_closed{false};

std::align_val_t alignment_of(std::size_t size) noexcept
{
  return std::align_val_t(size > large_page ? large_page : axsPageStore::unit);
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
    for (Slot& slot : slots)
      if (char* const memory = slot.memory.exchange(nullptr))
      {
        axsPoison::remove(memory, slot.size);
        free_block(memory, slot.size);
      }
  }
};
AtEnd const at_end;
}

axsPageStore::Block axsPageStore::take(std::size_t size)
{
  for (Slot& slot : slots)
    if (slot.size == size)
      if (char* const memory = slot.memory.exchange(nullptr))
      {
        axsPoison::remove(memory, size);
        return {memory, false};
      }
  return {static_cast<char*>(::operator new(size, alignment_of(size))), true};
}

void axsPageStore::give_back(char* memory, std::size_t size) noexcept
{
  // Whoever still uses a node of the document that has gone is found out.
  axsPoison::add(memory, size);
  for (Slot& slot : slots)
  {
    char* empty = nullptr;
    if (slot.size == size && !is_closed && slot.memory.compare_exchange_strong(empty, memory))
      return;
  }
  axsPoison::remove(memory, size);
  free_block(memory, size);
}
