#include "FailingMemory.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

// What stands behind the allocation functions replaced here: a sanitizer where there is one, else the C library.
extern "C"
{
  void* __interceptor_malloc(std::size_t size) __attribute__((weak));
  void* __interceptor_calloc(std::size_t count, std::size_t size) __attribute__((weak));
  void* __interceptor_realloc(void* block, std::size_t size) __attribute__((weak));
  void* __interceptor_aligned_alloc(std::size_t alignment, std::size_t size) __attribute__((weak));
  void __interceptor_free(void* block) __attribute__((weak));
  void* __libc_malloc(std::size_t size);
  void* __libc_calloc(std::size_t count, std::size_t size);
  void* __libc_realloc(void* block, std::size_t size);
  void* __libc_memalign(std::size_t alignment, std::size_t size);
  void __libc_free(void* block);
}

namespace
{
struct State
{
  bool active;
  bool failed;
  bool is_single;
  long allowed;
  long held;
};

// Plain data without a constructor: it is used before main.
thread_local State state;

// Whether an allocation may go on.
bool admitted()
{
  if (!state.active)
    return true;
  if (state.allowed > 0 || (state.failed && state.is_single))
  {
    --state.allowed;
    return true;
  }
  state.failed = true;
  return false;
}

void* counted(void* block)
{
  if (state.active && block != nullptr)
    ++state.held;
  return block;
}
}

FailingMemory::FailingMemory(long allowed, Failures failures)
{
  state = {true, false, failures == Failures::single, allowed, 0};
}

FailingMemory::~FailingMemory()
{
  state.active = false;
}

bool FailingMemory::has_failed() const
{
  return state.failed;
}

long FailingMemory::blocks_held() const
{
  return state.held;
}

extern "C" void* malloc(std::size_t size)
{
  if (!admitted())
    return nullptr;
  return counted(__interceptor_malloc != nullptr ? __interceptor_malloc(size) : __libc_malloc(size));
}

extern "C" void* calloc(std::size_t count, std::size_t size)
{
  if (!admitted())
    return nullptr;
  return counted(__interceptor_calloc != nullptr ? __interceptor_calloc(count, size) : __libc_calloc(count, size));
}

extern "C" void* realloc(void* block, std::size_t size)
{
  if (!admitted())
    return nullptr;
  void* const moved =
    __interceptor_realloc != nullptr ? __interceptor_realloc(block, size) : __libc_realloc(block, size);
  return block == nullptr ? counted(moved) : moved;
}

// Where libc++ takes the memory for exceptions from.
extern "C" void* aligned_alloc(std::size_t alignment, std::size_t size)
{
  if (!admitted())
    return nullptr;
  return counted(__interceptor_aligned_alloc != nullptr ? __interceptor_aligned_alloc(alignment, size)
                                                        : __libc_memalign(alignment, size));
}

extern "C" int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
  void* const made = aligned_alloc(alignment, size);
  if (made == nullptr)
    return ENOMEM;
  *block = made;
  return 0;
}

extern "C" void free(void* block)
{
  if (state.active && block != nullptr)
    --state.held;
  if (__interceptor_free != nullptr)
    __interceptor_free(block);
  else
    __libc_free(block);
}

void* operator new(std::size_t size)
{
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr)
    throw std::bad_alloc();
  return block;
}

void* operator new[](std::size_t size)
{
  return ::operator new(size);
}

void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
  return std::malloc(size == 0 ? 1 : size);
}

void* operator new[](std::size_t size, std::nothrow_t const&) noexcept
{
  return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* block) noexcept
{
  std::free(block);
}

void operator delete[](void* block) noexcept
{
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
  std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
  std::free(block);
}

// A sanitizer has these of its own, which ask none of the functions above.
void* operator new(std::size_t size, std::align_val_t alignment)
{
  void* const block = aligned_alloc(static_cast<std::size_t>(alignment), size);
  if (block == nullptr)
    throw std::bad_alloc();
  return block;
}

void* operator new(std::size_t size, std::align_val_t alignment, std::nothrow_t const&) noexcept
{
  return aligned_alloc(static_cast<std::size_t>(alignment), size);
}

void operator delete(void* block, std::align_val_t) noexcept
{
  std::free(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept
{
  std::free(block);
}

void operator delete(void* block, std::align_val_t, std::nothrow_t const&) noexcept
{
  std::free(block);
}
