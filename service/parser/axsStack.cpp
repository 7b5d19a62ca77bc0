#include "axsStack.h"

#include <algorithm>
#include <cstddef>

#if defined(_WIN32)
#  include <windows.h>
#elif defined(__linux__)
#  include <pthread.h>
#endif

namespace
{
// Enough to throw an exception and to clean up.
std::uintptr_t const reserve = std::uintptr_t{128} * 1024;

std::uintptr_t here() noexcept
{
  char const local = 0;
  // Only the number is wanted, though to compilers it looks like a pointer that is given away.
  char const* volatile at = nullptr;
  at = &local;
  return reinterpret_cast<std::uintptr_t>(at);
}

struct Range
{
  std::uintptr_t low = 0;
  std::uintptr_t high = 0;
};

// Empty where it is not known.
Range stack_of_thread() noexcept
{
  Range range;
#if defined(_WIN32)
  ULONG_PTR low = 0;
  ULONG_PTR high = 0;
  GetCurrentThreadStackLimits(&low, &high);
  range = {low, high};
#elif defined(__linux__)
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0)
    return range;
  void* start = nullptr;
  std::size_t size = 0;
  if (pthread_attr_getstack(&attributes, &start, &size) == 0)
  {
    auto const low = reinterpret_cast<std::uintptr_t>(start);
    range = {low, low + size};
  }
  pthread_attr_destroy(&attributes);
#endif
  return range;
}
}

axsStack::axsStack() noexcept
{
  // For the first thread of a process the system reads a list of all that is mapped, which takes a millisecond.
  thread_local Range const own = stack_of_thread();
  std::uintptr_t const at = here();
  // A fiber is on a stack that the system does not know.
  bool const is_own = at >= own.low && at < own.high;
  // Of a small stack, a part.
  lowest_good = is_own ? own.low + std::min(reserve, (at - own.low) / 4) : 0;
}

bool axsStack::is_low() const noexcept
{
  return here() < lowest_good;
}
