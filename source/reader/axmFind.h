#pragma once

#if defined(__x86_64__) || defined(_M_X64)
#  define AXM_FIND_SSE2
#  include <emmintrin.h>
#endif

// The place of the first `c` or NUL from `at` on; `end` points to the NUL that ends the text. Made for values of a few
// characters, for which a call of the C library is too much. Not installed.
inline char const* axm_find(char const* at, char const* end, char c)
{
#if defined(AXM_FIND_SSE2) && defined(__GNUC__)
  __m128i const wanted = _mm_set1_epi8(c);
  for (; end - at >= 16; at += 16)
  {
    __m128i const text = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
    int const found =
      _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(text, wanted), _mm_cmpeq_epi8(text, _mm_setzero_si128())));
    if (found != 0)
      return at + __builtin_ctz(static_cast<unsigned>(found));
  }
#else
  static_cast<void>(end);
#endif
  while (*at != c && *at != '\0')
    ++at;
  return at;
}
