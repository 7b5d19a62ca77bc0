#include "axsUtf8Scan.h"

#include "axsUtf8Chunks.h"
#include "axsUtf8ScanByAvx2.h"

#include <apByteBlock.h>

#include <cstdint>

namespace
{
using axsUtf8Chunks::LineEnds;
using axsUtf8Chunks::moved;
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

template <class Bytes>
Chunk chunk_of(Bytes const& bytes, Chunk const& before) noexcept
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
char const* skip_by(char const* at, char const* end, Seen& seen) noexcept
{
  char const* const begin = at;
  Chunk before;
  LineEnds lines(seen);
  for (; end - at >= chunk; at += chunk)
  {
    Bytes const bytes(at);
    bool const is_ascii = bytes.is_ascii_text() && !before.is_open();
    Chunk const now = is_ascii ? Chunk() : chunk_of(bytes, before);
    if (!is_ascii && !is_well_formed(now, before))
      break;
    seen.has_excluded = seen.has_excluded || has_excluded_character(now, before);
    lines.add(bytes.is('\r'), bytes.is('\n'));
    before = now;
  }
  lines.tell(seen);
  return axsUtf8Chunks::end_of_whole(begin, at);
}
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
    return axsUtf8Scan::skip_by_avx2;
#endif
  return skip_by_blocks;
}

char const* axsUtf8Scan::skip(char const* at, char const* end, Seen& seen) noexcept
{
  static Way const way = fastest();
  return way(at, end, seen);
}
