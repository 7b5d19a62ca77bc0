#include "axmMarks.h"

#include <apByteBlock.h>

#include <atomic>
#include <cstddef>

#if defined(AP_HAS_SSE2) && defined(__GNUC__) && !defined(_WIN32)
// On Windows the compiler may put such vectors on a stack that is not aligned for them.
#  define AXM_HAS_AVX2
#  include <immintrin.h>
#endif

namespace
{
using Find = void (*)(char const* from, std::uint64_t* masks);

template <class Block>
void find_by(char const* from, std::uint64_t* masks)
{
  for (int block = 0; block < axmMarks::blocks; ++block)
  {
    std::uint64_t mask = 0;
    for (std::size_t i = 0; i < axmMarks::block_bytes; i += Block::size, from += Block::size)
    {
      Block const bytes(from);
      mask |= static_cast<std::uint64_t>((bytes.is_either('<', '>') | bytes.is('\0')).bits()) << i;
    }
    masks[block] = mask;
  }
}

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
  find_by<apWordBlock>,
#if defined(AP_HAS_SSE2)
  find_by<apSse2Block>,
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
