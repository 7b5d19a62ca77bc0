#pragma once

#include "apByteBlock.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Text between its narrow and its wide form as long as it is ASCII, as most of it is: in blocks that compilers turn into
/// vector instructions, the last one of which overlaps the one before it, so that hardly anything is left to single steps.
/// Safe from several threads at once.
class apAscii
{
public:
  /// Whether the `length` bytes at `text` are all ASCII.
  static bool is_ascii(char const* text, std::size_t length) noexcept
  {
    if (length < sizeof(std::uint64_t))
      return is_short_ascii(text, length);
    std::uint64_t all = word<std::uint64_t>(text) | word<std::uint64_t>(text + length - sizeof all);
    std::size_t at = sizeof all;
    for (; at + 4 * sizeof all <= length; at += 4 * sizeof all)
      all |= word<std::uint64_t>(text + at) | word<std::uint64_t>(text + at + 8) | word<std::uint64_t>(text + at + 16) |
             word<std::uint64_t>(text + at + 24);
    for (; at + sizeof all <= length; at += sizeof all)
      all |= word<std::uint64_t>(text + at);
    return (all & 0x8080808080808080u) == 0;
  }

  /// Puts the `length` ASCII characters at `text` to `wide`, which they do not overlap.
  static void widen(char const* text, std::size_t length, wchar_t* wide) noexcept
  {
    if (length < block)
    {
      widen_short(text, length, wide);
      return;
    }
    for (std::size_t at = 0; at + block <= length; at += block)
      widen_block(text + at, wide + at);
    widen_block(text + length - block, wide + length - block);
  }

  /// Whether the `length` characters at `text` are all ASCII.
  static bool is_ascii(wchar_t const* text, std::size_t length) noexcept
  {
    unsigned long all = 0;
    for (std::size_t i = 0; i < length; ++i)
      all |= static_cast<unsigned long>(text[i]);
    return all < 0x80;
  }

  /// Puts the `length` ASCII characters at `text` to `narrow`, which they do not overlap.
  static void narrow(wchar_t const* __restrict text, std::size_t length, char* __restrict narrow) noexcept
  {
    for (std::size_t i = 0; i < length; ++i)
      narrow[i] = static_cast<char>(text[i]);
  }

private:
  static constexpr std::size_t block = 8;
  static constexpr std::size_t half_block = block / 2;

  // Of fewer bytes than a block.
  static bool is_short_ascii(char const* text, std::size_t length) noexcept
  {
    if (length >= half_block)
      return ((word<std::uint32_t>(text) | word<std::uint32_t>(text + length - half_block)) & 0x80808080u) == 0;
    unsigned all = 0;
    for (std::size_t i = 0; i < length; ++i)
      all |= static_cast<unsigned char>(text[i]);
    return all < 0x80;
  }

  static void widen_short(char const* text, std::size_t length, wchar_t* wide) noexcept
  {
    if (length >= half_block)
    {
      widen_half_block(text, wide);
      widen_half_block(text + length - half_block, wide + length - half_block);
      return;
    }
    for (std::size_t i = 0; i < length; ++i)
      wide[i] = static_cast<wchar_t>(text[i]);
  }

  template <class Word>
  static Word word(char const* text) noexcept
  {
    Word bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return bytes;
  }

#if defined(AP_HAS_SSE2)
  static void widen_block(char const* text, wchar_t* wide) noexcept
  {
    __m128i const zero = _mm_setzero_si128();
    __m128i const units = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<__m128i const*>(text)), zero);
    auto* const to = reinterpret_cast<__m128i*>(wide);
    if constexpr (sizeof(wchar_t) == 2)
      _mm_storeu_si128(to, units);
    else
    {
      _mm_storeu_si128(to, _mm_unpacklo_epi16(units, zero));
      _mm_storeu_si128(to + 1, _mm_unpackhi_epi16(units, zero));
    }
  }

  static void widen_half_block(char const* text, wchar_t* wide) noexcept
  {
    __m128i const zero = _mm_setzero_si128();
    __m128i const units = _mm_unpacklo_epi8(_mm_cvtsi32_si128(static_cast<int>(word<std::uint32_t>(text))), zero);
    auto* const to = reinterpret_cast<__m128i*>(wide);
    if constexpr (sizeof(wchar_t) == 2)
      _mm_storel_epi64(to, units);
    else
      _mm_storeu_si128(to, _mm_unpacklo_epi16(units, zero));
  }
#else
  static void widen_block(char const* text, wchar_t* wide) noexcept
  {
    widen_half_block(text, wide);
    widen_half_block(text + half_block, wide + half_block);
  }

  static void widen_half_block(char const* __restrict text, wchar_t* __restrict wide) noexcept
  {
    for (std::size_t i = 0; i < half_block; ++i)
      wide[i] = static_cast<wchar_t>(static_cast<unsigned char>(text[i]));
  }
#endif
};
