#pragma once

#include <cstddef>
#include <new>
#include <utility>

/// The memory of what the shared pointers to the nodes of one document need besides the nodes: small blocks, taken and
/// given back often.
///
/// It outlives the document as long as a block is out, since a `std::weak_ptr` keeps one after the nodes have gone; the
/// last block that comes back then takes the pool with it. As the document, it belongs to one thread at a time.
class axsHandlePool
{
public:
  /// A pool that its document gives up with abandon().
  static axsHandlePool* make();

  /// The document goes.
  void abandon() noexcept;

  /// A block for `size` bytes. Throws std::bad_alloc when memory runs out.
  void* allocate(std::size_t size)
  {
    if (size > limit)
      return allocate_large(size);
    Block*& free_ones = free_blocks[units_of(size)];
    Block* const block = free_ones;
    if (block == nullptr)
      return allocate_fresh(units_of(size));
    free_ones = block->next;
    return block;
  }

  /// Whether there is a free block for what a shared pointer to a node needs.
  bool is_ready() const noexcept { return free_blocks[ready_units] != nullptr; }

  /// Sees to that. Throws std::bad_alloc when memory runs out.
  void make_ready() { release(allocate(ready_units * granule), ready_units * granule); }

  /// A block for `size` bytes, which is a part of what a shared pointer to a node needs, from a pool that is ready.
  void* allocate_ready(std::size_t size)
  {
    if (units_of(size) != ready_units)
      return allocate(size);
    Block*& free_ones = free_blocks[ready_units];
    return std::exchange(free_ones, free_ones->next);
  }

  void release(void* block, std::size_t size) noexcept
  {
    if (size > limit)
      release_large(block);
    else
    {
      Block*& free_ones = free_blocks[units_of(size)];
      free_ones = new (block) Block{free_ones};
    }
    if (is_abandoned)
      one_came_back();
  }

private:
  struct Block
  {
    Block* next;
  };
  struct Slab;

  static constexpr std::size_t granule = 16;
  static constexpr std::size_t limit = 192;
  // What a shared pointer with a deleter and an allocator takes in the standard libraries known. Where it takes something
  // else, that is allocated like everything else.
  static constexpr std::size_t ready_units = 2;

  static constexpr std::size_t units_of(std::size_t size) noexcept { return (size + granule - 1) / granule; }

  axsHandlePool() noexcept = default;
  ~axsHandlePool();

  void* allocate_large(std::size_t size);
  void* allocate_fresh(std::size_t units);
  void release_large(void* block) noexcept;
  void one_came_back() noexcept;

  Block* free_blocks[limit / granule + 1] = {};
  Slab* slabs = nullptr;
  char* room = nullptr;
  char* room_end = nullptr;
  // The blocks there are. Before the pool is abandoned those of them that are free count, too: to count only those that
  // are out would take time at every one that goes or comes.
  std::size_t blocks = 0;
  bool is_abandoned = false;
};

/// Lets the standard library take its blocks from a pool; if `ready`, those of a shared pointer to a node from one that is
/// ready for it.
template <class T, bool ready = false>
class axsHandleAllocator
{
public:
  using value_type = T;

  explicit axsHandleAllocator(axsHandlePool& pool) noexcept : from(&pool) {}

  template <class U>
  struct rebind
  {
    using other = axsHandleAllocator<U, ready>;
  };

  template <class U>
  axsHandleAllocator(axsHandleAllocator<U, ready> const& other) noexcept : from(other.pool())
  {
  }

  T* allocate(std::size_t count)
  {
    std::size_t const size = count * sizeof(T);
    return static_cast<T*>(ready ? from->allocate_ready(size) : from->allocate(size));
  }

  void deallocate(T* block, std::size_t count) noexcept { from->release(block, count * sizeof(T)); }

  axsHandlePool* pool() const noexcept { return from; }

  template <class U>
  bool operator==(axsHandleAllocator<U, ready> const& other) const noexcept
  {
    return from == other.pool();
  }

  template <class U>
  bool operator!=(axsHandleAllocator<U, ready> const& other) const noexcept
  {
    return from != other.pool();
  }

private:
  axsHandlePool* from;
};

template <class T>
using axsReadyAllocator = axsHandleAllocator<T, true>;
