#pragma once

#include <cstdint>
#include <cstring>

/// Machine words, the same on every machine. Safe from several threads at once.
namespace apBits
{
/// The number of the lowest bit that is set, from 0; there must be one.
inline int lowest(std::uint64_t bits) noexcept
{
#if defined(__GNUC__)
  return __builtin_ctzll(bits);
#else
  int number = 0;
  for (; (bits & 1) == 0; bits >>= 1)
    ++number;
  return number;
#endif
}

/// The eight bytes at `at`, the first one in the lowest place.
inline std::uint64_t load(char const* at) noexcept
{
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  std::uint64_t word = 0;
  for (int i = 8; i-- > 0;)
    word = (word << 8) | static_cast<unsigned char>(at[i]);
  return word;
#else
  std::uint64_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
#endif
}

/// The same of four bytes.
inline std::uint32_t load_half(char const* at) noexcept
{
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  std::uint32_t word = 0;
  for (int i = 4; i-- > 0;)
    word = (word << 8) | static_cast<unsigned char>(at[i]);
  return word;
#else
  std::uint32_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
#endif
}
}
