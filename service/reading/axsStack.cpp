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
std::uintptr_t const reserve = 128 * 1024;

std::uintptr_t here() noexcept
{
  char const local = 0;
  return reinterpret_cast<std::uintptr_t>(&local);
}

// 0 where it is not known.
std::uintptr_t lowest_address() noexcept
{
#if defined(_WIN32)
  ULONG_PTR low = 0;
  ULONG_PTR high = 0;
  GetCurrentThreadStackLimits(&low, &high);
  return low;
#elif defined(__linux__)
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0)
    return 0;
  void* low = nullptr;
  std::size_t size = 0;
  bool const known = pthread_attr_getstack(&attributes, &low, &size) == 0;
  pthread_attr_destroy(&attributes);
  return known ? reinterpret_cast<std::uintptr_t>(low) : 0;
#else
  return 0;
#endif
}
}

axsStack::axsStack() noexcept
{
  std::uintptr_t const lowest = lowest_address();
  // Of a small stack, a part.
  lowest_good = lowest == 0 ? 0 : lowest + std::min(reserve, (here() - lowest) / 4);
}

bool axsStack::is_low() const noexcept
{
  return here() < lowest_good;
}
