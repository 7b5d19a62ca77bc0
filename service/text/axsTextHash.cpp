#include "axsTextHash.h"

#include <chrono>
#include <exception>
#include <random>

namespace
{
std::uint64_t drawn()
{
  try
  {
    std::random_device device;
    return static_cast<std::uint64_t>(device()) << 32 | device();
  }
  catch (std::exception const&)
  {
    // Where the system has nothing random, the time is at least not the same for all.
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) *
           0x9E3779B97F4A7C15u;
  }
}
}

std::uint64_t axsTextHash::key_of_process()
{
  // Neither even nor small, whatever was drawn: the product must keep every bit and reach the upper half.
  static std::uint64_t const key = drawn() | 0x8000000000000001u;
  return key;
}
