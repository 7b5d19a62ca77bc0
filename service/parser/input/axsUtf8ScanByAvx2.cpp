#include "axsUtf8ScanByAvx2.h"

#include "axsUtf8Chunks.h"

#include <cstdint>

#if defined(AP_HAS_AVX2)
// Everything that has such vectors is compiled for them.
#  define AXS_AVX2 __attribute__((target("avx2,popcnt")))

namespace
{
// What two neighbours must not be: which high and low halves the first byte has, and which high half the second, a bit for
// each of the sixteen.
struct WrongPair
{
  unsigned first_high;
  unsigned first_low;
  unsigned second_high;
};

constexpr unsigned any = 0xFFFF;
constexpr unsigned ascii = 0x00FF;
constexpr unsigned continuation = 0x0F00;
constexpr unsigned lead = 0xF000;

// The Unicode Standard, table 3-7.
constexpr WrongPair wrong_pairs[] = {
  {lead, any, ascii | lead},         // a character that ends too early
  {ascii, any, continuation},        // one that has no beginning
  {1u << 0xC, 0x0003, continuation}, // C0 and C1: there is a shorter form
  {1u << 0xE, 1u << 0x0, 0x0300},    // E0 80 to 9F: the same
  {1u << 0xE, 1u << 0xD, 0x0C00},    // ED A0 to BF: surrogates
  {1u << 0xF, 0xFFF0, 0x0E00},       // F4 90 to BF, F5 and more: beyond the last character
  {1u << 0xF, 0xFFE1, 0x0100},       // F0 80 to 8F: there is a shorter form; F5 and more
  {continuation, any, continuation}, // right only as the end of three or four: the highest bit of all
};

// By one half of a byte, the pairs it may belong to, a bit for each.
struct HalfTable
{
  constexpr explicit HalfTable(unsigned WrongPair::*half) : pairs()
  {
    for (unsigned pair = 0; pair < 8; ++pair)
      for (unsigned value = 0; value < 16; ++value)
        pairs[value] = static_cast<unsigned char>(pairs[value] | ((wrong_pairs[pair].*half >> value) & 1) << pair);
  }

  AXS_AVX2 __m256i at(__m256i halves) const noexcept
  {
    __m128i const table = _mm_loadu_si128(reinterpret_cast<__m128i const*>(pairs));
    return _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(table), halves);
  }

  unsigned char pairs[16];
};

constexpr HalfTable first_high(&WrongPair::first_high);
constexpr HalfTable first_low(&WrongPair::first_low);
constexpr HalfTable second_high(&WrongPair::second_high);

AXS_AVX2 __m256i low_halves(__m256i bytes) noexcept
{
  return _mm256_and_si256(bytes, _mm256_set1_epi8(0x0F));
}

AXS_AVX2 __m256i high_halves(__m256i bytes) noexcept
{
  return low_halves(_mm256_srli_epi16(bytes, 4));
}

// Each byte so many places on, those of the vector before first.
template <int places>
AXS_AVX2 __m256i moved(__m256i bytes, __m256i before) noexcept
{
  return _mm256_alignr_epi8(bytes, _mm256_permute2x128_si256(before, bytes, 0x21), 16 - places);
}

// Nothing but zero where the bytes go on in a well-formed way. By tables of half bytes, as Keiser and Lemire do ("Validating
// UTF-8 in less than one instruction per byte").
AXS_AVX2 __m256i wrong(__m256i bytes, __m256i before) noexcept
{
  __m256i const first = moved<1>(bytes, before);
  __m256i const of_first = _mm256_and_si256(first_high.at(high_halves(first)), first_low.at(low_halves(first)));
  __m256i const found = _mm256_and_si256(of_first, second_high.at(high_halves(bytes)));
  // The highest bit is left where a third or fourth byte has to be.
  __m256i const third = _mm256_subs_epu8(moved<2>(bytes, before), _mm256_set1_epi8(0xE0 - 0x80));
  __m256i const fourth = _mm256_subs_epu8(moved<3>(bytes, before), _mm256_set1_epi8(0xF0 - 0x80));
  __m256i const last_of_three = _mm256_and_si256(_mm256_or_si256(third, fourth), _mm256_set1_epi8('\x80'));
  return _mm256_xor_si256(found, last_of_three);
}

// Where U+FFFE or U+FFFF end.
AXS_AVX2 __m256i excluded(__m256i bytes, __m256i before) noexcept
{
  __m256i const least = _mm256_set1_epi8('\xBE');
  __m256i const ef = _mm256_cmpeq_epi8(moved<2>(bytes, before), _mm256_set1_epi8('\xEF'));
  __m256i const bf = _mm256_cmpeq_epi8(moved<1>(bytes, before), _mm256_set1_epi8('\xBF'));
  __m256i const from_be = _mm256_cmpeq_epi8(_mm256_max_epu8(bytes, least), bytes);
  return _mm256_and_si256(_mm256_and_si256(ef, bf), from_be);
}

AXS_AVX2 bool is_any(__m256i bytes) noexcept
{
  return _mm256_testz_si256(bytes, bytes) == 0;
}

AXS_AVX2 std::uint64_t places_of(char c, __m256i low, __m256i high) noexcept
{
  __m256i const wanted = _mm256_set1_epi8(c);
  auto const first = static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(low, wanted)));
  auto const second = static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(high, wanted)));
  return first | static_cast<std::uint64_t>(second) << 32;
}

// Whether it is in no text, which the pair that it begins would say in the next chunk only.
bool is_wrong_first(char byte) noexcept
{
  auto const value = static_cast<unsigned char>(byte);
  return value == 0xC0 || value == 0xC1 || value >= 0xF5;
}
}

AXS_AVX2 char const* axsUtf8Scan::skip_by_avx2(char const* at, char const* end, Seen& seen) noexcept
{
  char const* const begin = at;
  axsUtf8Chunks::LineEnds lines(seen);
  __m256i before = _mm256_setzero_si256();
  for (; end - at >= chunk; at += chunk)
  {
    __m256i const low = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(at));
    __m256i const high = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(at) + 1);
    if (is_any(_mm256_cmpeq_epi8(_mm256_min_epu8(low, high), _mm256_setzero_si256())))
      break;
    if (_mm256_movemask_epi8(_mm256_or_si256(_mm256_or_si256(low, high), before)) != 0)
    {
      if (is_any(_mm256_or_si256(wrong(low, before), wrong(high, low))) || is_wrong_first(at[chunk - 1]))
        break;
      seen.has_excluded = seen.has_excluded || is_any(_mm256_or_si256(excluded(low, before), excluded(high, low)));
    }
    lines.add(places_of('\r', low, high), places_of('\n', low, high));
    before = high;
  }
  lines.tell(seen);
  return axsUtf8Chunks::end_of_whole(begin, at);
}
#endif
