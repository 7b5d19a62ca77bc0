#pragma once

#include <cstddef>

#if (defined(__x86_64__) || defined(_M_X64)) && defined(__GNUC__)
#  define AXM_FIND_SSE2
#  include <emmintrin.h>
#endif

// Searches over a few characters, for which a call of the C library is too much. `end` points to the NUL that ends the
// text; one before it ends a search as well. Not installed.

#if defined(AXM_FIND_SSE2)
// Sixteen characters of a text, one bit of an answer for each.
class axmSixteen
{
public:
  static constexpr std::ptrdiff_t size = 16;

  explicit axmSixteen(char const* at) : text(_mm_loadu_si128(reinterpret_cast<__m128i const*>(at))) {}

  unsigned equal(char c) const { return bits(_mm_cmpeq_epi8(text, _mm_set1_epi8(c))); }
  unsigned equal(axmSixteen const& other) const { return bits(_mm_cmpeq_epi8(text, other.text)); }
  unsigned equal(char one, char other) const
  {
    return bits(_mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8(one)), _mm_cmpeq_epi8(text, _mm_set1_epi8(other))));
  }
  unsigned space() const
  {
    __m128i const wide =
      _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8(' ')), _mm_cmpeq_epi8(text, _mm_set1_epi8('\n')));
    __m128i const rare =
      _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8('\t')), _mm_cmpeq_epi8(text, _mm_set1_epi8('\r')));
    return bits(_mm_or_si128(wide, rare));
  }

  static int first(unsigned bits) { return __builtin_ctz(bits); }

private:
  static unsigned bits(__m128i answer) { return static_cast<unsigned>(_mm_movemask_epi8(answer)); }

  __m128i text;
};
#endif

// The place of the first `c` or NUL from `at` on.
inline char const* axm_find(char const* at, char const* end, char c)
{
#if defined(AXM_FIND_SSE2)
  for (; end - at >= axmSixteen::size; at += axmSixteen::size)
    if (unsigned const found = axmSixteen(at).equal(c, '\0'))
      return at + axmSixteen::first(found);
#else
  static_cast<void>(end);
#endif
  while (*at != c && *at != '\0')
    ++at;
  return at;
}

// The place of the first character from `at` on that is no white space.
inline char const* axm_find_no_space(char const* at, char const* end)
{
#if defined(AXM_FIND_SSE2)
  unsigned const all = 0xFFFF;
  for (; end - at >= axmSixteen::size; at += axmSixteen::size)
    if (unsigned const found = axmSixteen(at).space() ^ all)
      return at + axmSixteen::first(found);
#else
  static_cast<void>(end);
#endif
  while (*at == ' ' || *at == '\t' || *at == '\n' || *at == '\r')
    ++at;
  return at;
}
