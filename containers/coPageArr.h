#pragma once

#include "utAnycoPageArrINTERNALcoDynArr.h"
#include "utCopy.h"

#include <algorithm>
#include <cassert>
#include <climits>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <utility>

/// Growable array in pages of equal size, whose elements never move while it grows.
///
/// Owns its elements: each page holds page_size() of them, made with their default constructor when the page is
/// allocated and destroyed with it. Elements above the count stay as they are until they are used again or their page
/// goes. Indices are counted from 0. Running out of memory is std::bad_alloc from the operations that hand out
/// elements, and leaves the array as it was. The assignment of an element must not throw. Cannot be copied but with
/// utCopy; not to be used by two threads at once.
template <class T>
class coPageArr
{
public:
  using value_type = T;

  /// No elements and no pages; pages of 256 elements.
  coPageArr() noexcept : coPageArr(8, 5, 10) {}

  /// No elements and no pages; pages of `1 << shift` elements, a shift outside of 0 to 30 counting as the nearer of the
  /// two. The other two numbers are the first capacity and the least growth of the page directory.
  coPageArr(int shift, int directory_capacity, int directory_growth) noexcept
    : size_of_page(1 << std::clamp(shift, 0, 30)),
      page_shift(std::clamp(shift, 0, 30)),
      directory(directory_capacity, directory_growth)
  {
  }

  /// The given values, in order; an array of sole owners takes over the objects pointed to.
  /// Throws std::bad_alloc when memory runs out, before any value is taken.
  template <class U>
  coPageArr(std::initializer_list<U> values) : coPageArr()
  {
    reserve(static_cast<int>(values.size()));
    for (U const& value : values)
      (*this)[used] = value;
  }

  /// The elements of `other`, with pages of the same size; see utCopy for elements that cannot be copied.
  /// Throws std::bad_alloc when memory runs out; `other` is unchanged then.
  coPageArr(utCopy mark, coPageArr& other) : coPageArr(other.page_shift, 5, 10) { become(mark, other); }

  coPageArr(coPageArr const&) = delete;
  coPageArr& operator=(coPageArr const&) = delete;

  ~coPageArr() { free_pages(0); }

  /// The number of elements in use.
  int count() const noexcept { return used; }

  /// The number of elements a page.
  int page_size() const noexcept { return size_of_page; }

  /// The number of pages that exist.
  int pages() const noexcept { return pages_allocated; }

  /// The element at `index`. An index at or beyond the count extends the array up to it, so indexing at count() appends;
  /// the elements thereby taken into use are as they were left when they were last in use.
  /// The index must not be negative. Throws std::bad_alloc when memory runs out.
  T& operator[](int index)
  {
    assert(index >= 0);
    if (index >= used)
    {
      // The page that is current exists.
      if (index >> page_shift != current_block && (index == INT_MAX || !get_block(index >> page_shift)))
        throw std::bad_alloc();
      used = index + 1;
    }
    return slot(index);
  }

  /// The element at `index`, 0 <= index < count().
  T const& operator[](int index) const noexcept
  {
    assert(index >= 0 && index < used);
    return slot(index);
  }

  /// Lowers the count to `wanted` if it is higher. With `free_pages_too` 0 nothing else happens: the elements above stay
  /// alive. Otherwise every page beyond the last one that `wanted` elements need is destroyed with its elements. A
  /// negative number counts as 0.
  void shrink(int wanted, int free_pages_too) noexcept
  {
    wanted = std::max(wanted, 0);
    used = std::min(used, wanted);
    if (free_pages_too != 0)
      free_pages(pages_for(wanted));
  }

  /// Sets the count to 0. With `free_pages_too` 0 every element stays alive, otherwise all pages are destroyed.
  void clear(int free_pages_too) noexcept { shrink(0, free_pages_too); }

  /// Gives back room of an array that has come to need less than one page: its pages become one page of the smallest
  /// size (a power of two) that holds the count, into which its elements move; elements above the count are destroyed.
  /// Returns the number of slots given up: those that there were, less the size of one new page. That is negative for an
  /// array that had no pages. An array of a page or more, and one for which memory runs out, stays as it is and returns 0.
  int repaginate() noexcept
  {
    if (used >= size_of_page)
      return 0;
    int shift = page_shift;
    while (shift > 0 && (1 << (shift - 1)) >= used)
      --shift;

    long long const slots_before = static_cast<long long>(pages_allocated) * size_of_page;
    if (shift == page_shift)
      free_pages(1);
    else if (!rebuild(shift))
      return 0;
    return static_cast<int>(std::min<long long>(slots_before - size_of_page, INT_MAX));
  }

  /// Takes over `n` elements of this array, from index `from` on, to index `to` and following, which extends the array
  /// where it must; the two ranges may overlap. Those copied must lie within the count.
  void copy(int from, int to, int n)
  {
    assert(from >= 0 && n >= 0 && from <= used - n);
    extend(to, n);
    if (to < from)
      for (int i = 0; i < n; ++i)
        take(slot(to + i), slot(from + i));
    else if (to > from)
      for (int i = n; i-- > 0;)
        take(slot(to + i), slot(from + i));
  }

  /// Takes over `n` elements from `source`, which are not of this array, to index `to` and following, which extends the
  /// array where it must.
  void copyin(T* source, int to, int n)
  {
    extend(to, n);
    for (int i = 0; i < n; ++i)
      take(slot(to + i), source[i]);
  }

  /// Hands `n` elements, from index `from` on, over to `target`. They must lie within the count.
  void copyout(int from, T* target, int n)
  {
    assert(from >= 0 && n >= 0 && from <= used - n);
    for (int i = 0; i < n; ++i)
      take(target[i], slot(from + i));
  }

  /// Turns the order of the `n` elements from index `from` on around. They must lie within the count.
  void reverse(int from, int n)
  {
    assert(from >= 0 && n >= 0 && from <= used - n);
    for (int low = from, high = from + n - 1; low < high; ++low, --high)
      exchange(slot(low), slot(high));
  }

  /// Becomes as long as `other` and takes over its elements; see utCopy for elements that cannot be copied.
  /// Throws std::bad_alloc when memory runs out, before any element is touched.
  void become(utCopy, coPageArr& other)
  {
    if (this == &other)
      return;
    reserve(other.used);
    used = other.used;
    for (int i = 0; i < used; ++i)
      take(slot(i), other.slot(i));
  }

protected:
  /// Makes page `block` exist, and with it every page before it, and makes it the current one.
  /// 1 on success, 0 when memory runs out; pages made until then stay.
  int get_block(int block) noexcept
  {
    if (block < pages_allocated)
    {
      switch_block(block);
      return 1;
    }
    if (!directory.set_count(block + 1))
      return 0;
    while (pages_allocated <= block)
    {
      T* const page = make_page(size_of_page);
      if (page == nullptr)
      {
        directory.shrink(pages_allocated, 0);
        return 0;
      }
      directory[pages_allocated++] = page;
    }
    switch_block(block);
    return 1;
  }

  /// Makes page `block`, which must exist, the current one.
  void switch_block(int block) noexcept
  {
    current_block = block;
    current_page = page(block);
  }

private:
  static T* make_page(int slots) noexcept
  {
    try
    {
      return new T[static_cast<std::size_t>(slots)]();
    }
    catch (std::bad_alloc const&)
    {
      return nullptr;
    }
  }

  // Gives an element its new value: a copy where there is such a thing, otherwise what the source owns.
  static void take(T& target, T& source)
  {
    if constexpr (std::is_copy_assignable_v<T>)
      target = source;
    else
      target.become(source.release());
  }

  static void exchange(T& one, T& other)
  {
    if constexpr (std::is_copy_assignable_v<T>)
      std::swap(one, other);
    else
      one.swap(other);
  }

  int pages_for(int elements) const noexcept { return elements == 0 ? 0 : ((elements - 1) >> page_shift) + 1; }

  T* page(int block) const noexcept { return static_cast<T*>(directory[block]); }

  T& slot(int index) const noexcept { return page(index >> page_shift)[index & (size_of_page - 1)]; }

  void reserve(int elements)
  {
    if (elements > 0 && !get_block((elements - 1) >> page_shift))
      throw std::bad_alloc();
  }

  // Takes `n` elements from index `to` on into use.
  void extend(int to, int n)
  {
    assert(to >= 0 && n >= 0);
    if (n == 0)
      return;
    if (n > INT_MAX - to)
      throw std::bad_alloc();
    reserve(to + n);
    used = std::max(used, to + n);
  }

  void free_pages(int kept) noexcept
  {
    while (pages_allocated > kept)
      delete[] page(--pages_allocated);
    directory.shrink(pages_allocated, 1);
    if (current_block >= pages_allocated)
    {
      current_block = -1;
      current_page = nullptr;
    }
  }

  bool rebuild(int shift) noexcept
  {
    T* const rebuilt = make_page(1 << shift);
    if (rebuilt == nullptr || !directory.set_count(std::max(pages_allocated, 1)))
    {
      delete[] rebuilt;
      return false;
    }
    for (int i = 0; i < used; ++i)
      take(rebuilt[i], slot(i));
    while (pages_allocated > 0)
      delete[] page(--pages_allocated);
    directory.shrink(1, 0);
    directory[0] = rebuilt;
    pages_allocated = 1;
    page_shift = shift;
    size_of_page = 1 << shift;
    switch_block(0);
    return true;
  }

  int pages_allocated = 0;
  int used = 0;
  int size_of_page;
  int page_shift;
  utAnycoPageArrINTERNALcoDynArr directory;
  int current_block = -1;
  T* current_page = nullptr;
};
