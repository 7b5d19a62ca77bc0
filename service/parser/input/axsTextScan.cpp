#include "axsTextScan.h"

namespace
{
static_assert(axsTextScan::overreach >= apByteBlock::size);

template <class Block>
char const* end_by(char const* at) noexcept
{
  return axsCharacters::end_of_utf8_text<Block, '<', '&', ']'>(at);
}

#if defined(AP_HAS_AVX2)
__attribute__((target("avx2"))) char const* end_by_avx2(char const* at) noexcept
{
  // Looked up by its lower half, only one of the three is what is found there; the first entry is no byte of that half.
  __m256i const marks = _mm256_setr_epi8(1, 0, 0, 0, 0, 0, '&', 0, 0, 0, 0, 0, '<', ']', 0, 0, //
    1, 0, 0, 0, 0, 0, '&', 0, 0, 0, 0, 0, '<', ']', 0, 0);
  while (true)
  {
    __m256i const bytes = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(at));
    __m256i const is_mark = _mm256_cmpeq_epi8(_mm256_shuffle_epi8(marks, bytes), bytes);
    __m256i const is_control = _mm256_cmpeq_epi8(_mm256_min_epu8(bytes, _mm256_set1_epi8(0x1F)), bytes);
    __m256i const is_space = _mm256_or_si256(
      _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\t')), _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\n')));
    __m256i const found = _mm256_or_si256(is_mark, _mm256_andnot_si256(is_space, is_control));
    unsigned const bits = static_cast<unsigned>(_mm256_movemask_epi8(found));
    if (bits != 0)
      return at + __builtin_ctz(bits);
    at += sizeof bytes;
  }
}
#endif
}

char const* axsTextScan::end_by_words(char const* at) noexcept
{
  return end_by<apWordBlock>(at);
}

char const* axsTextScan::end_by_blocks(char const* at) noexcept
{
  return end_by<apByteBlock>(at);
}

axsTextScan::Way axsTextScan::fastest() noexcept
{
#if defined(AP_HAS_AVX2)
  if (__builtin_cpu_supports("avx2") != 0)
    return end_by_avx2;
#endif
  return end_by_blocks;
}

char const* axsTextScan::end_of_long(char const* at) noexcept
{
  static Way const way = fastest();
  return way(at);
}
