#pragma once

#include <cstddef>
#include <new>
#include <utility>

/// The memory for the control blocks of the shared pointers to one document's nodes, and for its lists and maps: small
/// blocks, allocated and released often, each in a constant time.
///
/// It outlives its document as long as a block is in use, since a `std::weak_ptr` keeps one after the nodes have gone; it
/// is deleted with the last block. Like the document, it belongs to one thread at a time.
class axsHandlePool
{
public:
  /// A pool for a document, which calls abandon() at its end. Throws std::bad_alloc when memory runs out.
  static axsHandlePool* make();

  /// The document is destroyed; the pool deletes itself as soon as no block is in use.
  void abandon() noexcept;

  /// Calls that.
  struct Abandoner
  {
    void operator()(axsHandlePool* pool) const noexcept { pool->abandon(); }
  };

  /// The number of blocks in use. Costs a step for each that was.
  std::size_t count_used() const noexcept;

  /// For a pool without a block in use: nothing is taken from it any more, and it is never ready.
  void close() noexcept;

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

  /// Whether a control block can be allocated without a call that may fail.
  bool is_ready() const noexcept { return free_blocks[ready_units] != nullptr; }

  /// Makes it so. Throws std::bad_alloc when memory runs out.
  void make_ready() { release(allocate(ready_units * granule), ready_units * granule); }

  /// The same as allocate() for a control block, from a pool that is ready.
  void* allocate_ready(std::size_t size)
  {
    if (units_of(size) != ready_units)
      return allocate(size);
    Block*& free_ones = free_blocks[ready_units];
    return std::exchange(free_ones, free_ones->next);
  }

  /// Takes back a block that was allocated for `size` bytes.
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
  // The size of a control block with a deleter and an allocator in libstdc++ and libc++. One of another size is allocated
  // like any other block.
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
  // The number of blocks. Free ones count as well until the pool is abandoned, for counting those in use would cost time at
  // every allocation.
  std::size_t blocks = 0;
  bool is_abandoned = false;
};

/// An allocator over a pool for the standard library; with `ready`, for control blocks from a pool that is ready.
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
