#include "apEntropy.h"

#include <chrono>
#include <exception>
#include <random>

#if defined(__linux__)
#  include <sys/random.h>
#endif

namespace
{
// Of Linux, one call. The standard library's device asks the processor before what it can, which in a virtual machine
// takes as long as reading a small document.
bool draw_from_system([[maybe_unused]] std::uint64_t& bits) noexcept
{
#if defined(__linux__)
  return getrandom(&bits, sizeof bits, 0) == static_cast<ssize_t>(sizeof bits);
#else
  return false;
#endif
}
}

std::uint64_t apEntropy::draw() noexcept
{
  std::uint64_t bits = 0;
  if (draw_from_system(bits))
    return bits;
  try
  {
    std::random_device device;
    return static_cast<std::uint64_t>(device()) << 32 | device();
  }
  catch (std::exception const&)
  {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  }
}
