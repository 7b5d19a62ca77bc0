#include "axsUtf8Scan.h"

#include <apByteBlock.h>
#include <utUtf8.h>

#include <cstdint>

namespace
{
using axsUtf8Scan::chunk;

// Which bytes of a chunk are what, a bit for each, the lowest for the first. Only what is there is looked at further.
struct Chunk
{
  std::uint64_t beyond_ascii = 0;
  // Those that are in no text.
  std::uint64_t wrong = 0;
  // The first bytes of characters of two bytes or more, of three or more, and of four.
  std::uint64_t leads = 0;
  std::uint64_t leads_of_3 = 0;
  std::uint64_t leads_of_4 = 0;
  // Those of three after which not every second byte may follow, and where these part.
  std::uint64_t e0 = 0;
  std::uint64_t ed = 0;
  std::uint64_t from_a0 = 0;
  // What U+FFFE and U+FFFF consist of.
  std::uint64_t ef = 0;
  std::uint64_t bf = 0;
  std::uint64_t from_be = 0;
  // Those of four.
  std::uint64_t f0 = 0;
  std::uint64_t f4 = 0;
  std::uint64_t from_90 = 0;

  // Whether a character that begins in it goes on after it.
  bool is_open() const noexcept { return (leads >> 63 | leads_of_3 >> 62 | leads_of_4 >> 61) != 0; }
};

// Each bit so many places on, those of the chunk before first.
std::uint64_t moved(std::uint64_t bits, std::uint64_t before, int places) noexcept
{
  return bits << places | before >> (64 - places);
}

// Whether the characters that begin in the chunk, and one that began before, are well-formed as far as it goes.
bool is_well_formed(Chunk const& is, Chunk const& before) noexcept
{
  std::uint64_t const continuations = is.beyond_ascii & ~is.leads;
  std::uint64_t const expected = moved(is.leads, before.leads, 1) | moved(is.leads_of_3, before.leads_of_3, 2) |
                                 moved(is.leads_of_4, before.leads_of_4, 3);
  // Second bytes below have a shorter form; those above make a surrogate or a number beyond the last one.
  std::uint64_t const wrong_seconds =
    (moved(is.e0, before.e0, 1) & ~is.from_a0) | (moved(is.ed, before.ed, 1) & is.from_a0) |
    (moved(is.f0, before.f0, 1) & ~is.from_90) | (moved(is.f4, before.f4, 1) & is.from_90);
  return ((continuations ^ expected) | (wrong_seconds & continuations) | is.wrong) == 0;
}

// Whether U+FFFE or U+FFFF end in the chunk.
bool has_excluded_character(Chunk const& is, Chunk const& before) noexcept
{
  return (moved(is.ef, before.ef, 2) & moved(is.bf, before.bf, 1) & is.from_be) != 0;
}

// The end of whole characters, of which those from `begin` to `at` are well-formed as far as that goes.
char const* end_of_whole(char const* begin, char const* at) noexcept
{
  for (std::ptrdiff_t back = 1; back < static_cast<std::ptrdiff_t>(utUtf8::max_bytes) && back <= at - begin; ++back)
    if (!utUtf8::is_continuation(at[-back]))
      return static_cast<std::ptrdiff_t>(utUtf8::length_from_first(at[-back])) > back ? at - back : at;
  return at;
}

template <class Block>
bool is_ascii_text(char const* at) noexcept
{
  auto found = Block(at).is_zero_or_non_ascii();
  for (std::ptrdiff_t place = Block::size; place < chunk; place += Block::size)
    found = found | Block(at + place).is_zero_or_non_ascii();
  return !found.any();
}

template <class Block, class Find>
std::uint64_t bits_of(char const* at, Find find) noexcept
{
  std::uint64_t bits = 0;
  for (std::size_t place = 0; place < chunk; place += Block::size)
    bits |= static_cast<std::uint64_t>(find(Block(at + place)).bits()) << place;
  return bits;
}

template <class Block>
std::uint64_t is(char const* at, char c) noexcept
{
  return bits_of<Block>(at, [c](Block const& block) { return block.is(c); });
}

template <class Block>
std::uint64_t is_at_least(char const* at, char c) noexcept
{
  return bits_of<Block>(at, [c](Block const& block) { return block.is_at_least(c); });
}

template <class Block>
Chunk chunk_at(char const* at, Chunk const& before) noexcept
{
  Chunk made;
  made.beyond_ascii = is_at_least<Block>(at, '\x80');
  made.leads = is_at_least<Block>(at, '\xC0');
  made.wrong = is<Block>(at, '\0') | (made.leads & ~is_at_least<Block>(at, '\xC2'));
  made.leads_of_3 = is_at_least<Block>(at, '\xE0');
  if ((made.leads_of_3 | before.leads_of_3) == 0)
    return made;
  made.e0 = is<Block>(at, '\xE0');
  made.ed = is<Block>(at, '\xED');
  made.from_a0 = is_at_least<Block>(at, '\xA0');
  made.ef = is<Block>(at, '\xEF');
  made.bf = is<Block>(at, '\xBF');
  made.from_be = is_at_least<Block>(at, '\xBE');
  made.leads_of_4 = is_at_least<Block>(at, '\xF0');
  if ((made.leads_of_4 | before.leads_of_4) == 0)
    return made;
  made.f0 = is<Block>(at, '\xF0');
  made.f4 = is<Block>(at, '\xF4');
  made.from_90 = is_at_least<Block>(at, '\x90');
  made.wrong |= is_at_least<Block>(at, '\xF5');
  return made;
}

template <class Block>
char const* skip_by(char const* at, char const* end, bool& has_excluded) noexcept
{
  char const* const begin = at;
  Chunk before;
  for (; end - at >= chunk; at += chunk)
  {
    bool const is_ascii = is_ascii_text<Block>(at) && !before.is_open();
    Chunk const now = is_ascii ? Chunk() : chunk_at<Block>(at, before);
    if (!is_ascii && !is_well_formed(now, before))
      break;
    has_excluded = has_excluded || has_excluded_character(now, before);
    before = now;
  }
  return end_of_whole(begin, at);
}

#if defined(AP_HAS_AVX2)
// The two halves of a chunk.
struct Halves
{
  __m256i first;
  __m256i second;
};

__attribute__((target("avx2"))) inline std::uint64_t bits_of(__m256i first, __m256i second) noexcept
{
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(first)) |
         static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(second))) << 32;
}

__attribute__((target("avx2"))) inline std::uint64_t is(Halves const& bytes, char c) noexcept
{
  __m256i const wanted = _mm256_set1_epi8(c);
  return bits_of(_mm256_cmpeq_epi8(bytes.first, wanted), _mm256_cmpeq_epi8(bytes.second, wanted));
}

__attribute__((target("avx2"))) inline std::uint64_t is_at_least(Halves const& bytes, char c) noexcept
{
  __m256i const least = _mm256_set1_epi8(c);
  return bits_of(_mm256_cmpeq_epi8(_mm256_max_epu8(bytes.first, least), bytes.first),
    _mm256_cmpeq_epi8(_mm256_max_epu8(bytes.second, least), bytes.second));
}

__attribute__((target("avx2"))) inline bool is_ascii_text(Halves const& bytes) noexcept
{
  // Compared as signed numbers, what is no ASCII is less than 1, as zero is.
  __m256i const least = _mm256_min_epi8(bytes.first, bytes.second);
  return _mm256_movemask_epi8(_mm256_cmpgt_epi8(_mm256_set1_epi8(1), least)) == 0;
}

__attribute__((target("avx2"))) inline Chunk chunk_of(Halves const& bytes, Chunk const& before) noexcept
{
  Chunk made;
  made.beyond_ascii = bits_of(bytes.first, bytes.second);
  made.leads = is_at_least(bytes, '\xC0');
  made.wrong = is(bytes, '\0') | (made.leads & ~is_at_least(bytes, '\xC2'));
  made.leads_of_3 = is_at_least(bytes, '\xE0');
  if ((made.leads_of_3 | before.leads_of_3) == 0)
    return made;
  made.e0 = is(bytes, '\xE0');
  made.ed = is(bytes, '\xED');
  made.from_a0 = is_at_least(bytes, '\xA0');
  made.ef = is(bytes, '\xEF');
  made.bf = is(bytes, '\xBF');
  made.from_be = is_at_least(bytes, '\xBE');
  made.leads_of_4 = is_at_least(bytes, '\xF0');
  if ((made.leads_of_4 | before.leads_of_4) == 0)
    return made;
  made.f0 = is(bytes, '\xF0');
  made.f4 = is(bytes, '\xF4');
  made.from_90 = is_at_least(bytes, '\x90');
  made.wrong |= is_at_least(bytes, '\xF5');
  return made;
}

__attribute__((target("avx2"))) char const* skip_by_avx2(char const* at, char const* end, bool& has_excluded) noexcept
{
  char const* const begin = at;
  Chunk before;
  for (; end - at >= chunk; at += chunk)
  {
    auto const* const from = reinterpret_cast<__m256i const*>(at);
    Halves const bytes{_mm256_loadu_si256(from), _mm256_loadu_si256(from + 1)};
    bool const is_ascii = is_ascii_text(bytes) && !before.is_open();
    Chunk const now = is_ascii ? Chunk() : chunk_of(bytes, before);
    if (!is_ascii && !is_well_formed(now, before))
      break;
    has_excluded = has_excluded || has_excluded_character(now, before);
    before = now;
  }
  return end_of_whole(begin, at);
}
#endif
}

char const* axsUtf8Scan::skip_by_words(char const* at, char const* end, bool& has_excluded) noexcept
{
  return skip_by<apWordBlock>(at, end, has_excluded);
}

char const* axsUtf8Scan::skip_by_blocks(char const* at, char const* end, bool& has_excluded) noexcept
{
  return skip_by<apByteBlock>(at, end, has_excluded);
}

axsUtf8Scan::Way axsUtf8Scan::fastest() noexcept
{
#if defined(AP_HAS_AVX2)
  if (__builtin_cpu_supports("avx2") != 0)
    return skip_by_avx2;
#endif
  return skip_by_blocks;
}

char const* axsUtf8Scan::skip(char const* at, char const* end, bool& has_excluded) noexcept
{
  static Way const way = fastest();
  return way(at, end, has_excluded);
}
