#pragma once

#include <utility>

/// Sole owner of one object on the heap, or of none.
///
/// Owns the object it holds and deletes it when it takes another one or goes away itself. It cannot be copied; an
/// object changes hands with release() and become(), or with swap(). Not to be used by two threads at once.
template <class T>
class coPrg
{
public:
  /// Owns nothing.
  coPrg() noexcept = default;

  /// Takes over `object`, which may be null.
  explicit coPrg(T* object) noexcept : held(object) {}

  coPrg(coPrg const&) = delete;
  coPrg& operator=(coPrg const&) = delete;

  ~coPrg() { delete_pointer(); }

  /// The same as become().
  coPrg& operator=(T const* object) noexcept
  {
    become(object);
    return *this;
  }

  /// Deletes the object held so far, if any, and takes over `object`, which may be null. Given the very object it
  /// holds, it keeps it.
  void become(T const* object) noexcept
  {
    if (object == held)
      return;
    delete_pointer();
    held = const_cast<T*>(object);
  }

  /// Deletes the object held, if any, and owns nothing afterwards.
  void reset() noexcept { become(nullptr); }

  /// Hands the object to the caller, who owns it from now on; null if there was none.
  T* release() noexcept { return std::exchange(held, nullptr); }

  void swap(coPrg& other) noexcept { std::swap(held, other.held); }

  /// The object held, null if there is none; it stays owned.
  T* get() const noexcept { return held; }

  /// The object held; there must be one.
  T* operator->() const noexcept { return held; }
  T& operator*() const noexcept { return *held; }

  explicit operator bool() const noexcept { return held != nullptr; }

private:
  void delete_pointer() noexcept
  {
    // The owner lets go first: a destructor that comes back here must not find the object it is destroying.
    delete std::exchange(held, nullptr);
  }

  T* held = nullptr;
};
