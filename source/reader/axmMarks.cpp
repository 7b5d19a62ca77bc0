#include "axmMarks.h"

#include <atomic>
#include <cstring>

#if defined(__x86_64__) || defined(_M_X64)
#  define AXM_HAS_SSE2
#  include <immintrin.h>
#  if defined(__GNUC__) && !defined(_WIN32)
// On Windows the compiler may put such vectors on a stack that is not aligned for them.
#    define AXM_HAS_AVX2
#  endif
#endif

namespace
{
using Find = void (*)(char const* from, std::uint64_t* masks);

// `<` and `>` differ in one bit, so one comparison finds both.
char const both = '<' | '>';
char const difference = '<' ^ '>';

std::uint64_t const low_bits = 0x0101010101010101u;
std::uint64_t const high_bits = 0x8080808080808080u;

// The high bit of each byte that is zero, exactly.
std::uint64_t zero_bytes(std::uint64_t word)
{
  return ~(((word & ~high_bits) + ~high_bits) | word) & high_bits;
}

// Eight bytes, the first one lowest.
std::uint64_t word_at(char const* from)
{
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  std::uint64_t word = 0;
  for (int i = 8; i-- > 0;)
    word = (word << 8) | static_cast<unsigned char>(from[i]);
  return word;
#else
  std::uint64_t word;
  std::memcpy(&word, from, sizeof word);
  return word;
#endif
}

void find_by_words(char const* from, std::uint64_t* masks)
{
  for (int block = 0; block < axmMarks::blocks; ++block)
  {
    std::uint64_t mask = 0;
    for (int i = 0; i < 8; ++i, from += 8)
    {
      std::uint64_t const word = word_at(from);
      std::uint64_t const found = zero_bytes(word) | zero_bytes((word | (low_bits * difference)) ^ (low_bits * both));
      // The product gathers the eight high bits in the highest byte.
      mask |= (((found >> 7) * 0x0102040810204080u) >> 56) << (8 * i);
    }
    masks[block] = mask;
  }
}

#if defined(AXM_HAS_SSE2)
std::uint64_t sse2_mask(char const* from)
{
  __m128i const text = _mm_loadu_si128(reinterpret_cast<__m128i const*>(from));
  __m128i const marks = _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(difference)), _mm_set1_epi8(both));
  __m128i const ends = _mm_cmpeq_epi8(text, _mm_setzero_si128());
  return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(marks, ends))));
}

void find_by_sse2(char const* from, std::uint64_t* masks)
{
  for (int block = 0; block < axmMarks::blocks; ++block, from += axmMarks::block_bytes)
    masks[block] =
      sse2_mask(from) | sse2_mask(from + 16) << 16 | sse2_mask(from + 32) << 32 | sse2_mask(from + 48) << 48;
}
#endif

#if defined(AXM_HAS_AVX2)
__attribute__((target("avx2"))) void find_by_avx2(char const* from, std::uint64_t* masks)
{
  // For each byte, the mark that has its lower four bits: a byte that equals it is that mark. Bytes of 128 and more give 0.
  __m256i const marks = _mm256_setr_epi8(
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, '<', 0, '>', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, '<', 0, '>', 0);
  for (int block = 0; block < axmMarks::blocks; ++block, from += axmMarks::block_bytes)
  {
    __m256i const low = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(from));
    __m256i const high = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(from + 32));
    auto const low_mask =
      static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(low, _mm256_shuffle_epi8(marks, low))));
    auto const high_mask =
      static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(high, _mm256_shuffle_epi8(marks, high))));
    masks[block] = low_mask | static_cast<std::uint64_t>(high_mask) << 32;
  }
}
#endif

Find const ways[] = {
  find_by_words,
#if defined(AXM_HAS_SSE2)
  find_by_sse2,
#else
  nullptr,
#endif
#if defined(AXM_HAS_AVX2)
  find_by_avx2,
#else
  nullptr,
#endif
};

axmMarks::Way fastest()
{
  return axmMarks::has(axmMarks::avx2)   ? axmMarks::avx2
         : axmMarks::has(axmMarks::sse2) ? axmMarks::sse2
                                         : axmMarks::words;
}

std::atomic<int>& choice()
{
  static std::atomic<int> way(fastest());
  return way;
}
}

void axmMarks::find(char const* from, std::uint64_t* masks)
{
  ways[choice().load(std::memory_order_relaxed)](from, masks);
}

bool axmMarks::has(Way way)
{
  if (ways[way] == nullptr)
    return false;
#if defined(AXM_HAS_AVX2)
  if (way == avx2)
    return __builtin_cpu_supports("avx2") != 0;
#endif
  return true;
}

axmMarks::Way axmMarks::chosen()
{
  return static_cast<Way>(choice().load(std::memory_order_relaxed));
}

void axmMarks::choose(Way way)
{
  choice().store(has(way) ? way : words, std::memory_order_relaxed);
}
