#pragma once

#include "apBits.h"

#include <cstddef>
#include <cstdint>

// The one place that asks which vectors there are: those of SSE2 everywhere, those of AVX2 in functions that are compiled
// for them and called where the processor has them. Windows lacks these: there the compiler may put them on a stack that
// is not aligned for them. A build with AP_WITHOUT_VECTORS does as machines do that have none, one with AP_WITHOUT_AVX2 as
// those that have SSE2 alone.
#if (defined(__SSE2__) || defined(_M_X64)) && !defined(AP_WITHOUT_VECTORS)
#  define AP_HAS_SSE2
#  include <emmintrin.h>
#  if defined(__GNUC__) && !defined(_WIN32) && !defined(AP_WITHOUT_AVX2)
#    define AP_HAS_AVX2
#    include <immintrin.h>
#  endif
#endif

/// Eight bytes that are looked at together, whatever the machine.
class apWordBlock
{
public:
  static constexpr std::size_t size = 8;

  /// Some of the bytes.
  class Found
  {
  public:
    /// Those whose highest bit is set in `given`, which has no other bits.
    explicit Found(std::uint64_t given) noexcept : high_bits(given) {}

    bool any() const noexcept { return high_bits != 0; }

    /// The number of the first one, counted from 0; there must be one.
    std::size_t first() const noexcept { return static_cast<std::size_t>(apBits::lowest(high_bits)) / 8; }

    /// One bit for each byte, the lowest for the first.
    std::uint32_t bits() const noexcept
    {
      // The product gathers the eight high bits in the highest byte.
      return static_cast<std::uint32_t>(((high_bits >> 7) * 0x0102040810204080u) >> 56);
    }

    Found without(Found other) const noexcept { return Found(high_bits & ~other.high_bits); }

    friend Found operator|(Found left, Found right) noexcept { return Found(left.high_bits | right.high_bits); }

  private:
    std::uint64_t high_bits;
  };

  /// Of the bytes from `at` on.
  explicit apWordBlock(char const* at) noexcept : bytes(apBits::load(at)) {}

  Found is(char c) const noexcept { return zero(bytes ^ (each * static_cast<unsigned char>(c))); }

  /// Those that are as the byte at the same place of `other`.
  Found is(apWordBlock const& other) const noexcept { return zero(bytes ^ other.bytes); }

  /// Those that are `one` or `other`, which differ in one bit: faster than each by itself.
  Found is_either(char one, char other) const noexcept
  {
    return zero(
      (bytes | (each * static_cast<unsigned char>(one ^ other))) ^ (each * static_cast<unsigned char>(one | other)));
  }

  /// Those that are less than a space or no ASCII.
  Found is_control_or_non_ascii() const noexcept { return Found((~((bytes & low) + each * 0x60) | bytes) & high); }

  /// Those that are less than a space.
  Found is_control() const noexcept { return Found(~((bytes & low) + each * 0x60) & ~bytes & high); }

  /// Those that are zero or no ASCII.
  Found is_zero_or_non_ascii() const noexcept { return Found((~((bytes & low) + low) | bytes) & high); }

  /// Those that are `c` or a larger byte; `c` is no ASCII.
  Found is_at_least(char c) const noexcept
  {
    return Found(((bytes & low) + each * (0x100u - static_cast<unsigned char>(c))) & bytes & high);
  }

private:
  static constexpr std::uint64_t each = 0x0101010101010101;
  static constexpr std::uint64_t low = each * 0x7F;
  static constexpr std::uint64_t high = each * 0x80;

  // No sum is larger than its byte, so that what is found of one byte never comes from another.
  static Found zero(std::uint64_t word) noexcept { return Found(~(((word & low) + low) | word) & high); }

  std::uint64_t bytes;
};

#if defined(AP_HAS_SSE2)
/// Sixteen bytes that are looked at together, with the same operations.
class apSse2Block
{
public:
  static constexpr std::size_t size = 16;

  class Found
  {
  public:
    explicit Found(__m128i given) noexcept : all_bits(given) {}

    bool any() const noexcept { return bits() != 0; }
    std::size_t first() const noexcept { return static_cast<std::size_t>(apBits::lowest(bits())); }
    std::uint32_t bits() const noexcept { return static_cast<std::uint32_t>(_mm_movemask_epi8(all_bits)); }
    Found without(Found other) const noexcept { return Found(_mm_andnot_si128(other.all_bits, all_bits)); }

    friend Found operator|(Found left, Found right) noexcept
    {
      return Found(_mm_or_si128(left.all_bits, right.all_bits));
    }

  private:
    __m128i all_bits;
  };

  explicit apSse2Block(char const* at) noexcept : bytes(_mm_loadu_si128(reinterpret_cast<__m128i const*>(at))) {}

  Found is(char c) const noexcept { return Found(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(c))); }
  Found is(apSse2Block const& other) const noexcept { return Found(_mm_cmpeq_epi8(bytes, other.bytes)); }

  Found is_either(char one, char other) const noexcept
  {
    __m128i const without_difference = _mm_or_si128(bytes, _mm_set1_epi8(static_cast<char>(one ^ other)));
    return Found(_mm_cmpeq_epi8(without_difference, _mm_set1_epi8(static_cast<char>(one | other))));
  }

  // Compared as signed numbers, what is no ASCII is less than 0.
  Found is_control_or_non_ascii() const noexcept { return Found(_mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20))); }
  Found is_zero_or_non_ascii() const noexcept { return Found(_mm_cmplt_epi8(bytes, _mm_set1_epi8(1))); }

  Found is_at_least(char c) const noexcept
  {
    return Found(_mm_cmpeq_epi8(_mm_max_epu8(bytes, _mm_set1_epi8(c)), bytes));
  }

  Found is_control() const noexcept { return Found(_mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(0x1F)), bytes)); }

private:
  __m128i bytes;
};

/// The largest block that every machine has for which this was compiled.
using apByteBlock = apSse2Block;
#else
using apByteBlock = apWordBlock;
#endif
