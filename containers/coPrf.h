#pragma once

#include "coPrfExternalDeleter.h"

#include <memory>
#include <utility>

/// Marks the constructor of a shared owner whose object is owned elsewhere.
struct coPrfExtern
{
};

/// Shared owner of one object, or of none: a `std::shared_ptr` under the name that the framework gives it.
///
/// The object is deleted when its last owner goes, unless it was made with coPrfExtern. Copies may be held and dropped
/// by several threads; one owner is used by one thread at a time.
template <class T>
class coPrf
{
public:
  /// Owns nothing.
  coPrf() noexcept = default;

  /// Takes over `object`, which may be null.
  /// Throws std::bad_alloc when memory runs out; `object` is deleted then.
  explicit coPrf(T* object) : held(object) {}

  coPrf(std::shared_ptr<T> object) noexcept : held(std::move(object)) {}

  /// Refers to an object that is owned elsewhere and must live longer than every copy of this owner.
  coPrf(coPrfExtern, T* object) : held(object, coPrfExternalDeleter()) {}

  operator std::shared_ptr<T>() const noexcept { return held; }

  /// The object held, null if there is none; it stays owned.
  T* get() const noexcept { return held.get(); }

  /// The object held; there must be one.
  T* operator->() const noexcept { return held.get(); }
  T& operator*() const noexcept { return *held; }

  explicit operator bool() const noexcept { return held != nullptr; }

private:
  /// Whether the object is owned elsewhere.
  bool external() const noexcept { return std::get_deleter<coPrfExternalDeleter>(held) != nullptr; }

  std::shared_ptr<T> held;
};
