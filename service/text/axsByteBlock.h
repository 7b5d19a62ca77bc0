#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#  include <emmintrin.h>
#endif

/// Eight bytes that are looked at together, whatever the machine.
class axsWordBlock
{
public:
  static constexpr std::size_t size = 8;

  /// Which of the bytes are meant: those whose highest bit is set.
  class Found
  {
  public:
    explicit Found(std::uint64_t given) noexcept : bits(given) {}

    bool any() const noexcept { return bits != 0; }

    /// The number of the first one, counted from 0; there is one.
    std::size_t first() const noexcept
    {
      unsigned char each_byte[size];
      std::memcpy(each_byte, &bits, size);
      std::size_t number = 0;
      while (each_byte[number] == 0)
        ++number;
      return number;
    }

    friend Found operator|(Found left, Found right) noexcept { return Found(left.bits | right.bits); }

  private:
    std::uint64_t bits;
  };

  explicit axsWordBlock(char const* at) noexcept { std::memcpy(&bytes, at, size); }

  Found is(char c) const noexcept { return Found(equal(c)); }

  /// Which are no ASCII or a control character, tab and line feed included or not.
  Found is_no_ascii_or_control() const noexcept { return Found(special()); }
  Found is_no_ascii_text() const noexcept { return Found(special() & ~(equal('\t') | equal('\n'))); }

private:
  static constexpr std::uint64_t each = 0x0101010101010101;
  static constexpr std::uint64_t low = each * 0x7F;
  static constexpr std::uint64_t high = each * 0x80;

  // No sum is larger than its byte, so that what is found of one byte never comes from another.
  std::uint64_t equal(char c) const noexcept
  {
    std::uint64_t const difference = bytes ^ (each * static_cast<unsigned char>(c));
    return ~(((difference & low) + low) | difference) & high;
  }

  std::uint64_t special() const noexcept { return (~((bytes & low) + each * 0x60) | bytes) & high; }

  std::uint64_t bytes = 0;
};

#if defined(__SSE2__)
/// Sixteen bytes that are looked at together, with the same operations.
class axsSse2Block
{
public:
  static constexpr std::size_t size = 16;

  class Found
  {
  public:
    explicit Found(__m128i given) noexcept : bits(given) {}

    bool any() const noexcept { return mask() != 0; }
    std::size_t first() const noexcept { return static_cast<std::size_t>(__builtin_ctz(mask())); }

    friend Found operator|(Found left, Found right) noexcept { return Found(_mm_or_si128(left.bits, right.bits)); }

  private:
    unsigned mask() const noexcept { return static_cast<unsigned>(_mm_movemask_epi8(bits)); }

    __m128i bits;
  };

  explicit axsSse2Block(char const* at) noexcept : bytes(_mm_loadu_si128(reinterpret_cast<__m128i const*>(at))) {}

  Found is(char c) const noexcept { return Found(equal(c)); }
  Found is_no_ascii_or_control() const noexcept { return Found(special()); }
  Found is_no_ascii_text() const noexcept
  {
    return Found(_mm_andnot_si128(_mm_or_si128(equal('\t'), equal('\n')), special()));
  }

private:
  __m128i equal(char c) const noexcept { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); }

  // Compared as signed numbers, what is no ASCII is less than 0.
  __m128i special() const noexcept { return _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20)); }

  __m128i bytes;
};

using axsByteBlock = axsSse2Block;
#else
using axsByteBlock = axsWordBlock;
#endif
