#pragma once

#include <cstddef>
#include <new>

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
    ++out;
    return block;
  }

  void release(void* block, std::size_t size) noexcept
  {
    if (size > limit)
      ::operator delete(block);
    else
    {
      Block*& free_ones = free_blocks[units_of(size)];
      free_ones = new (block) Block{free_ones};
    }
    if (--out == 0 && abandoned)
      delete this;
  }

private:
  struct Block
  {
    Block* next;
  };
  struct Slab;

  static constexpr std::size_t granule = 16;
  static constexpr std::size_t limit = 192;

  static constexpr std::size_t units_of(std::size_t size) noexcept { return (size + granule - 1) / granule; }

  axsHandlePool() noexcept = default;
  ~axsHandlePool();

  void* allocate_large(std::size_t size);
  void* allocate_fresh(std::size_t units);

  Block* free_blocks[limit / granule + 1] = {};
  Slab* slabs = nullptr;
  char* room = nullptr;
  char* room_end = nullptr;
  std::size_t out = 0;
  bool abandoned = false;
};

/// Lets the standard library take its blocks from a pool.
template <class T>
class axsHandleAllocator
{
public:
  using value_type = T;

  explicit axsHandleAllocator(axsHandlePool& pool) noexcept : from(&pool) {}

  template <class U>
  axsHandleAllocator(axsHandleAllocator<U> const& other) noexcept : from(other.pool())
  {
  }

  T* allocate(std::size_t count) { return static_cast<T*>(from->allocate(count * sizeof(T))); }
  void deallocate(T* block, std::size_t count) noexcept { from->release(block, count * sizeof(T)); }

  axsHandlePool* pool() const noexcept { return from; }

  template <class U>
  bool operator==(axsHandleAllocator<U> const& other) const noexcept
  {
    return from == other.pool();
  }

  template <class U>
  bool operator!=(axsHandleAllocator<U> const& other) const noexcept
  {
    return from != other.pool();
  }

private:
  axsHandlePool* from;
};
