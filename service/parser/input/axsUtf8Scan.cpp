#include "axsUtf8Scan.h"

#include <apByteBlock.h>
#include <utUtf8.h>

#include <bitset>
#include <cstdint>

namespace
{
using axsUtf8Scan::chunk;
using axsUtf8Scan::Seen;

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

// The bytes of a chunk as so many blocks.
template <class Block>
class Blocks
{
public:
  explicit Blocks(char const* from) noexcept : at(from) {}

  bool is_ascii_text() const noexcept
  {
    auto found = Block(at).is_zero_or_non_ascii();
    for (std::size_t place = Block::size; place < chunk; place += Block::size)
      found = found | Block(at + place).is_zero_or_non_ascii();
    return !found.any();
  }

  std::uint64_t is(char c) const noexcept
  {
    return bits_of([c](Block const& block) { return block.is(c); });
  }
  std::uint64_t is_at_least(char c) const noexcept
  {
    return bits_of([c](Block const& block) { return block.is_at_least(c); });
  }

private:
  template <class Find>
  std::uint64_t bits_of(Find find) const noexcept
  {
    std::uint64_t bits = 0;
    for (std::size_t place = 0; place < chunk; place += Block::size)
      bits |= static_cast<std::uint64_t>(find(Block(at + place)).bits()) << place;
    return bits;
  }

  char const* at;
};

#if defined(AP_HAS_AVX2)
// The same as two vectors of AVX2.
class Halves
{
public:
  __attribute__((target("avx2,popcnt"))) explicit Halves(char const* from) noexcept
    : first(_mm256_loadu_si256(reinterpret_cast<__m256i const*>(from))),
      second(_mm256_loadu_si256(reinterpret_cast<__m256i const*>(from) + 1))
  {
  }

  __attribute__((target("avx2,popcnt"))) bool is_ascii_text() const noexcept
  {
    // Compared as signed numbers, what is no ASCII is less than 1, as zero is.
    __m256i const least = _mm256_min_epi8(first, second);
    return _mm256_movemask_epi8(_mm256_cmpgt_epi8(_mm256_set1_epi8(1), least)) == 0;
  }

  __attribute__((target("avx2,popcnt"))) std::uint64_t is(char c) const noexcept
  {
    __m256i const wanted = _mm256_set1_epi8(c);
    return bits_of(_mm256_cmpeq_epi8(first, wanted), _mm256_cmpeq_epi8(second, wanted));
  }

  __attribute__((target("avx2,popcnt"))) std::uint64_t is_at_least(char c) const noexcept
  {
    __m256i const least = _mm256_set1_epi8(c);
    return bits_of(_mm256_cmpeq_epi8(_mm256_max_epu8(first, least), first),
      _mm256_cmpeq_epi8(_mm256_max_epu8(second, least), second));
  }

private:
  __attribute__((target("avx2,popcnt"))) static std::uint64_t bits_of(__m256i low, __m256i high) noexcept
  {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(low)) |
           static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(high))) << 32;
  }

  __m256i first;
  __m256i second;
};
#endif

// What has Bytes is compiled into who calls it, so that vectors which only some processors have stay in functions for these.
template <class Bytes>
[[gnu::always_inline]] inline Chunk chunk_of(Bytes const& bytes, Chunk const& before) noexcept
{
  Chunk made;
  made.beyond_ascii = bytes.is_at_least('\x80');
  made.leads = bytes.is_at_least('\xC0');
  made.wrong = bytes.is('\0') | (made.leads & ~bytes.is_at_least('\xC2'));
  made.leads_of_3 = bytes.is_at_least('\xE0');
  if ((made.leads_of_3 | before.leads_of_3) == 0)
    return made;
  made.e0 = bytes.is('\xE0');
  made.ed = bytes.is('\xED');
  made.from_a0 = bytes.is_at_least('\xA0');
  made.ef = bytes.is('\xEF');
  made.bf = bytes.is('\xBF');
  made.from_be = bytes.is_at_least('\xBE');
  made.leads_of_4 = bytes.is_at_least('\xF0');
  if ((made.leads_of_4 | before.leads_of_4) == 0)
    return made;
  made.f0 = bytes.is('\xF0');
  made.f4 = bytes.is('\xF4');
  made.from_90 = bytes.is_at_least('\x90');
  made.wrong |= bytes.is_at_least('\xF5');
  return made;
}

template <class Bytes>
[[gnu::always_inline]] inline char const* skip_by(char const* at, char const* end, Seen& seen) noexcept
{
  char const* const begin = at;
  Chunk before;
  std::uint64_t returns_before = static_cast<std::uint64_t>(seen.ends_with_return) << (chunk - 1);
  for (; end - at >= chunk; at += chunk)
  {
    Bytes const bytes(at);
    bool const is_ascii = bytes.is_ascii_text() && !before.is_open();
    Chunk const now = is_ascii ? Chunk() : chunk_of(bytes, before);
    if (!is_ascii && !is_well_formed(now, before))
      break;
    seen.has_excluded = seen.has_excluded || has_excluded_character(now, before);
    std::uint64_t const returns = bytes.is('\r');
    std::uint64_t const feeds = bytes.is('\n');
    seen.line_ends += std::bitset<chunk>(returns | (feeds & ~moved(returns, returns_before, 1))).count();
    returns_before = returns;
    before = now;
  }
  // A return before what is given back again is not told: no line feed comes there.
  seen.ends_with_return = returns_before >> (chunk - 1) != 0;
  return end_of_whole(begin, at);
}

#if defined(AP_HAS_AVX2)
__attribute__((target("avx2,popcnt"))) char const* skip_by_avx2(char const* at, char const* end, Seen& seen) noexcept
{
  return skip_by<Halves>(at, end, seen);
}
#endif
}

void Seen::add(char32_t character) noexcept
{
  has_excluded = has_excluded || character == 0xFFFE || character == 0xFFFF;
  line_ends += character == '\r' || (character == '\n' && !ends_with_return) ? 1 : 0;
  ends_with_return = character == '\r';
}

char const* axsUtf8Scan::skip_by_words(char const* at, char const* end, Seen& seen) noexcept
{
  return skip_by<Blocks<apWordBlock>>(at, end, seen);
}

char const* axsUtf8Scan::skip_by_blocks(char const* at, char const* end, Seen& seen) noexcept
{
  return skip_by<Blocks<apByteBlock>>(at, end, seen);
}

axsUtf8Scan::Way axsUtf8Scan::fastest() noexcept
{
#if defined(AP_HAS_AVX2)
  if (__builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("popcnt") != 0)
    return skip_by_avx2;
#endif
  return skip_by_blocks;
}

char const* axsUtf8Scan::skip(char const* at, char const* end, Seen& seen) noexcept
{
  static Way const way = fastest();
  return way(at, end, seen);
}
