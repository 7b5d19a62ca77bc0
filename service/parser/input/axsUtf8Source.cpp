#include "axsUtf8Source.h"

#include "axsDecoder.h"
#include "axsSource.h"

#include <apByteBlock.h>
#include <apStringFormatter.h>
#include <utUtf8.h>

#include <algorithm>
#include <string_view>

namespace
{
std::size_t const usual_piece = 32768;
wchar_t const* const zero_byte = L"A zero byte stands in the document";

std::unique_ptr<axsDecoder> make_decoder(std::string const& name)
{
  bool const is_utf8 = name == "UTF-8" || name == "US-ASCII";
  return is_utf8 ? nullptr : axsDecoder::make(name);
}

// The first byte from `at` on that is zero or no ASCII.
char const* end_of_ascii(char const* at, char const* end)
{
  auto const size = static_cast<std::ptrdiff_t>(apByteBlock::size);
  auto const special = [](char const* block) { return apByteBlock(block).is_zero_or_non_ascii(); };
  while (
    end - at >= 4 * size && !(special(at) | special(at + size) | special(at + 2 * size) | special(at + 3 * size)).any())
    at += 4 * size;
  for (; end - at >= size; at += size)
    if (auto const found = special(at); found.any())
      return at + found.first();
  return std::find_if_not(at, end, [](char c) { return c != '\0' && utUtf8::is_ascii(c); });
}

// Moves past characters of two and three bytes, which are nearly all beyond ASCII. Stops at the latest where a character
// might not be whole before `end`.
char const* end_of_usual(char const* at, char const* end)
{
  using utUtf8::is_continuation;
  while (end - at >= 3)
  {
    auto const first = static_cast<unsigned char>(at[0]);
    auto const second = static_cast<unsigned char>(at[1]);
    if (first >= 0xC2 && first < 0xE0 && is_continuation(at[1]))
      at += 2;
    // Second bytes below have a shorter form; those above make a surrogate.
    else if (first >= 0xE0 && first < 0xF0 && is_continuation(at[1]) && is_continuation(at[2]) &&
             (first != 0xE0 || second >= 0xA0) && (first != 0xED || second < 0xA0))
      at += 3;
    else
      break;
  }
  return at;
}

// How many bytes at the beginning are whole characters, and no zero bytes.
std::size_t size_of_text(std::string_view bytes, bool is_ascii)
{
  char const* const begin = bytes.data();
  char const* const end = begin + bytes.size();
  char const* at = end_of_ascii(begin, end);
  while (at != end && *at != '\0' && !is_ascii)
  {
    at = end_of_usual(at, end);
    if (at == end)
      break;
    if (utUtf8::is_ascii(*at))
    {
      at = end_of_ascii(at, end);
      continue;
    }
    utCodePoint const character = utUtf8::decode(at, end);
    if (!character.is_valid())
      break;
    at += character.length;
  }
  return static_cast<std::size_t>(at - begin);
}

bool may_go_on(std::string_view part)
{
  return utUtf8::decode(part.data(), part.data() + part.size()).is_cut_off();
}
}

axsUtf8Source::axsUtf8Source(axsSource& given)
  : source(given),
    found(axsEncoding::of(given.head(), given.url())),
    decoder(make_decoder(found.name))
{
  char mark[4];
  source.read(mark, found.mark_size);
}

axsUtf8Source::~axsUtf8Source() = default;

std::size_t axsUtf8Source::read(char* to, std::size_t room)
{
  if (!surplus.empty())
  {
    std::size_t const count = surplus.copy(to, room);
    surplus.erase(0, count);
    return count;
  }
  if (!wrong.empty())
    return 0;
  return decoder == nullptr ? read_utf8(to, room) : read_decoded(to, room);
}

std::size_t axsUtf8Source::read_utf8(char* to, std::size_t room)
{
  while (!at_end)
  {
    std::size_t const before = rest.size();
    std::copy(rest.begin(), rest.end(), to);
    std::size_t const count = source.read(to + before, room - before);
    at_end = count == 0;
    std::string_view const text(to, before + count);
    std::size_t const size = size_of_text(text, found.name == "US-ASCII");
    std::string_view const part = text.substr(size);
    bool const goes_on = !part.empty() && !at_end && may_go_on(part);
    rest.assign(part.begin(), goes_on ? part.end() : part.begin());
    if (!part.empty() && part[0] == '\0')
      wrong = apString(zero_byte);
    else if (!part.empty() && !goes_on)
      stop_at(part[0]);
    if (size > 0 || !wrong.empty())
      return size;
  }
  return 0;
}

std::size_t axsUtf8Source::read_decoded(char* to, std::size_t room)
{
  while (true)
  {
    note_place();
    std::string_view const bytes = std::string_view(rest.data(), rest.size()).substr(decoded);
    axsDecoder::Result const made = decoder->decode(bytes, to, room, at_end);
    decoded += made.taken;
    now.taken += made.taken;
    now.made += made.made;
    // No converter may keep us waiting at the end.
    bool const is_stuck = made.taken + made.made == 0 && at_end && !bytes.empty();
    std::size_t const size = std::min(std::string_view(to, made.made).find('\0'), made.made);
    if (size < made.made)
      wrong = apString(zero_byte);
    else if (made.is_illegal || is_stuck)
      stop_at(bytes[made.taken]);
    if (size > 0 || !wrong.empty() || (at_end && made.taken == bytes.size()))
      return size;
    if (!at_end)
      fill();
  }
}

void axsUtf8Source::note_place()
{
  if (places.empty() || now.made >= places.back().made + usual_piece)
    places.push_back(now);
}

void axsUtf8Source::seek(std::uint64_t position)
{
  rest.clear();
  surplus.clear();
  decoded = 0;
  at_end = false;
  wrong = apString();
  if (decoder == nullptr)
    return source.seek(found.mark_size + position);

  bool const has_states = axsDecoder::has_states(found.name);
  if (has_states)
    decoder = axsDecoder::make(found.name);
  auto const after = std::upper_bound(places.begin(), places.end(), position,
    [](std::uint64_t wanted, Place const& place) { return wanted < place.made; });
  now = has_states || after == places.begin() ? Place{0, 0} : *(after - 1);
  source.seek(found.mark_size + now.taken);
  skip(position - now.made);
}

void axsUtf8Source::skip(std::uint64_t bytes)
{
  char scratch[4096];
  while (bytes > 0)
  {
    std::size_t const count = read_decoded(scratch, sizeof scratch);
    if (count == 0)
      return;
    std::size_t const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count, bytes));
    surplus.assign(scratch + wanted, count - wanted);
    bytes -= wanted;
  }
}

void axsUtf8Source::fill()
{
  rest.erase(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(decoded));
  decoded = 0;
  std::size_t const before = rest.size();
  rest.resize(before + usual_piece);
  std::size_t const count = source.read(rest.data() + before, usual_piece);
  rest.resize(before + count);
  at_end = count == 0;
}

void axsUtf8Source::stop_at(char byte)
{
  wrong =
    apStringFormatter::format(L"The byte 0x%02X is not ", static_cast<unsigned>(static_cast<unsigned char>(byte))) +
    apString::from_utf8(found.name);
  if (found.is_declared)
    wrong += APSTRING(", which the document says that it is");
  else if (found.mark_size == 0)
    wrong += APSTRING("; a document in another encoding has to declare it");
}
