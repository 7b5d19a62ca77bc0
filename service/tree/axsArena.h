#pragma once

#include "axsFreeBlocks.h"
#include "axsPageStore.h"
#include "axsPoison.h"

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

class axsTree;

/// The memory of one document: nodes, names and texts.
///
/// Small blocks come from pages and go back to a list of free blocks of their size; large ones come from the system and
/// go back to it at once. When as much as a quarter of what is in use has come back since the last time, free blocks
/// beside each other are joined and pages without a block in use are for any size again, or go back to the system.
/// Everything goes with the arena, without a look at what lies in it. Sizes are in bytes. Belongs to its document and,
/// as that, to one thread at a time.
class axsArena
{
public:
  /// Up to here a block is a small one.
  static constexpr std::size_t small_limit = 1024;

  explicit axsArena(axsTree& owner) noexcept;
  axsArena(axsArena const&) = delete;
  axsArena& operator=(axsArena const&) = delete;
  ~axsArena();

  /// A block for `size` bytes, aligned for pointers. Throws std::bad_alloc when memory runs out.
  void* allocate(std::size_t size)
  {
    // Most blocks of a document that is read come one after the other.
    std::size_t const bytes = units_for(size) * granule;
    bool const is_next = size <= small_limit && !free_blocks.has(bytes / granule) && rest.left() < bytes;
    return is_next && room.left() >= bytes ? room.take(bytes) : allocate_elsewhere(size);
  }

  /// Takes back the block at `block`, which was allocated for `size` bytes.
  void release(void* block, std::size_t size) noexcept;

  /// What the arena has from the system.
  std::size_t footprint() const noexcept { return taken; }

  /// The document in whose arena the small block at `block` lies.
  static axsTree& tree_of(void const* block) noexcept
  {
    auto const address = reinterpret_cast<std::uintptr_t>(block);
    return *reinterpret_cast<Page const*>(address - address % page_size)->tree;
  }

private:
  struct Page
  {
    axsTree* tree;
    // The first of those that came with it.
    Page* chunk;
    // Of such a first one: the one that came before, their number, and how many of them are empty.
    Page* older;
    std::size_t pages;
    std::size_t empty;
    // Of an empty one the next one that is empty.
    Page* next_empty;
  };
  struct LargeBlock;

  // Where blocks can still be taken in a page.
  struct Room
  {
    std::size_t left() const noexcept { return static_cast<std::size_t>(end - begin); }

    void* take(std::size_t size) noexcept
    {
      axsPoison::remove(begin, size);
      return std::exchange(begin, begin + size);
    }

    char* begin = nullptr;
    char* end = nullptr;
  };

  static constexpr std::size_t granule = axsFreeBlocks::granule;

  static constexpr std::size_t min_joined = 64 * 1024;

  // Pages lie at multiples of their size, so that a node finds its document without a pointer of its own.
  static constexpr std::size_t page_size = axsPageStore::unit;

  static std::size_t units_for(std::size_t size) noexcept
  {
    std::size_t const min_size = axsFreeBlocks::min_units * granule;
    return (size < min_size ? min_size : size + granule - 1) / granule;
  }
  void* allocate_elsewhere(std::size_t size);
  void* allocate_large(std::size_t size);
  void release_large(void* block) noexcept;
  void add_pages();
  void fill_ahead(std::size_t size) noexcept;
  void next_page() noexcept;
  char* fresh_page() noexcept;
  void add_room(Room room_left) noexcept;
  void add_free(char* begin, std::size_t size) noexcept;
  void join_free_blocks() noexcept;
  void give_empty_pages_back() noexcept;

  axsTree* tree;
  axsFreeBlocks free_blocks;
  // Free blocks are joined when they are as much.
  std::size_t joined_at = min_joined;
  Room room;
  Room rest;
  char* untouched = nullptr;
  char* untouched_end = nullptr;
  // The system has handed out what is untouched up to here.
  char* filled_end = nullptr;
  Page* newest = nullptr;
  Page* empty_pages = nullptr;
  LargeBlock* large = nullptr;
  std::size_t taken = 0;
  // Those that are neither untouched nor empty.
  std::size_t pages_used = 0;
  std::size_t next_pages = 1;
};
