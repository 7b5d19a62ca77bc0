#include "axmStructuralScan.h"

#include <apByteBlock.h>

#include <cstddef>

namespace
{
using namespace axmStructuralScan;

template <class Block>
void find_by(char const* from, std::uint64_t* found)
{
  for (int i = 0; i < masks; ++i)
  {
    std::uint64_t mask = 0;
    for (std::size_t place = 0; place < mask_bytes; place += Block::size, from += Block::size)
    {
      Block const block(from);
      mask |= static_cast<std::uint64_t>((block.is_either('<', '>') | block.is('\0')).bits()) << place;
    }
    found[i] = mask;
  }
}

#if defined(AP_HAS_AVX2)
__attribute__((target("avx2"))) std::uint64_t mask_of_half(char const* from)
{
  // For each byte, the bracket that has its lower four bits: a byte that equals it is that bracket. Bytes of 128 and more
  // give 0, and so does 0.
  __m256i const brackets = _mm256_setr_epi8(
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, '<', 0, '>', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, '<', 0, '>', 0);
  __m256i const text = _mm256_loadu_si256(reinterpret_cast<__m256i const*>(from));
  return static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(text, _mm256_shuffle_epi8(brackets, text))));
}

__attribute__((target("avx2"))) void find_by_avx2(char const* from, std::uint64_t* found)
{
  for (int i = 0; i < masks; ++i, from += mask_bytes)
    found[i] = mask_of_half(from) | mask_of_half(from + mask_bytes / 2) << 32;
}
#endif
}

void axmStructuralScan::find_by_words(char const* from, std::uint64_t* found)
{
  find_by<apWordBlock>(from, found);
}

void axmStructuralScan::find_by_blocks(char const* from, std::uint64_t* found)
{
  find_by<apByteBlock>(from, found);
}

axmStructuralScan::Way axmStructuralScan::fastest()
{
#if defined(AP_HAS_AVX2)
  if (__builtin_cpu_supports("avx2") != 0)
    return find_by_avx2;
#endif
  return find_by_blocks;
}

void axmStructuralScan::find(char const* from, std::uint64_t* found)
{
  static Way const way = fastest();
  way(from, found);
}
