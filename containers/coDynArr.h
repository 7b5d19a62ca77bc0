#pragma once

#include <cassert>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <type_traits>

/// Growable array of plain values in one block of memory.
///
/// Owns the block, which moves when the array grows: pointers into it hold until the next growing operation. Values that
/// have not been written are undefined. Running out of memory is a result and changes nothing. Cannot be copied; not to
/// be used by two threads at once.
template <class T>
class coDynArr
{
  static_assert(std::is_trivially_copyable_v<T>, "the block is moved as bytes");

public:
  /// Holds nothing and has allocated nothing.
  coDynArr() noexcept = default;

  /// The same, with a say in how it grows: the first block has room for `first_capacity` values, and every later one for
  /// at least `least_growth` more than the one before (negative numbers count as 0). Besides, a block that has to grow
  /// grows by half, so that appending n values costs O(n).
  coDynArr(int first_capacity, int least_growth) noexcept
    : first(first_capacity > 0 ? first_capacity : 0),
      step(least_growth > 0 ? least_growth : 0)
  {
  }

  coDynArr(coDynArr const&) = delete;
  coDynArr& operator=(coDynArr const&) = delete;

  ~coDynArr() { std::free(block); }

  /// The number of values in use.
  int count() const noexcept { return used; }

  /// The number of values that fit without growing.
  int capacity() const noexcept { return room; }

  /// The first value; null as long as nothing was allocated.
  T* data() noexcept { return block; }
  T const* data() const noexcept { return block; }

  /// The value at `index`, 0 <= index < capacity(), whether it is in use or not.
  T& operator[](int index) noexcept
  {
    assert(index >= 0 && index < room);
    return block[index];
  }
  T const& operator[](int index) const noexcept
  {
    assert(index >= 0 && index < room);
    return block[index];
  }

  /// Makes room for exactly `wanted` values where there is less, and leaves the count as it is.
  /// False when memory runs out or `wanted` is negative.
  bool expand(int wanted) noexcept
  {
    if (wanted < 0)
      return false;
    return wanted <= room || reallocate(wanted);
  }

  /// Sets the count to `wanted`, with room as append() makes it.
  /// False when memory runs out or `wanted` is negative.
  bool set_count(int wanted) noexcept
  {
    if (wanted < 0 || (wanted > room && !grow(wanted)))
      return false;
    used = wanted;
    return true;
  }

  /// Adds `value` after the last one. False when memory runs out or the count cannot grow.
  bool append(T value) noexcept
  {
    if (used == INT_MAX || !set_count(used + 1))
      return false;
    block[used - 1] = value;
    return true;
  }

  /// Lowers the count to `wanted` if it is higher; with `free_block` non-zero, also gives back the room after it.
  void shrink(int wanted, int free_block) noexcept
  {
    if (wanted < 0)
      wanted = 0;
    if (wanted < used)
      used = wanted;
    if (free_block == 0 || used == room)
      return;
    if (used == 0)
      clear(1);
    else
      reallocate(used);
  }

  /// Sets the count to 0; with `free_block` non-zero, also gives back all memory.
  void clear(int free_block) noexcept
  {
    used = 0;
    if (free_block == 0)
      return;
    std::free(block);
    block = nullptr;
    room = 0;
  }

private:
  bool grow(int wanted) noexcept
  {
    long long target = static_cast<long long>(room) + (room / 2 > step ? room / 2 : step);
    if (target < first)
      target = first;
    if (target < wanted)
      target = wanted;
    if (target > INT_MAX)
      target = INT_MAX;
    return reallocate(static_cast<int>(target)) || reallocate(wanted);
  }

  bool reallocate(int wanted) noexcept
  {
    std::size_t const values = wanted > 0 ? static_cast<std::size_t>(wanted) : 1;
    if (values > static_cast<std::size_t>(-1) / sizeof(T))
      return false;
    void* const moved = std::realloc(block, values * sizeof(T));
    if (moved == nullptr)
      return false;
    block = static_cast<T*>(moved);
    room = static_cast<int>(values);
    return true;
  }

  T* block = nullptr;
  int used = 0;
  int room = 0;
  int first = 0;
  int step = 0;
};
