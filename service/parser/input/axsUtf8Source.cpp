#include "axsUtf8Source.h"

#include "axsDecoder.h"
#include "axsSource.h"

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

// How many bytes at the beginning are whole characters, and no zero bytes.
std::size_t size_of_utf8(std::string_view bytes, axsUtf8Scan::Seen& seen)
{
  char const* const end = bytes.data() + bytes.size();
  char const* at = axsUtf8Scan::skip(bytes.data(), end, seen);
  // What is left is less than a chunk, or the first thing that is wrong comes soon.
  while (at != end && *at != '\0')
  {
    utCodePoint const character = utUtf8::decode(at, end);
    if (!character.is_valid())
      break;
    seen.add(character.code);
    at += character.length;
  }
  return static_cast<std::size_t>(at - bytes.data());
}

std::size_t size_of_ascii(std::string_view bytes)
{
  auto const end =
    std::find_if_not(bytes.begin(), bytes.end(), [](char c) { return c != '\0' && utUtf8::is_ascii(c); });
  return static_cast<std::size_t>(end - bytes.begin());
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
    std::size_t const size = size_of_utf8(found.name == "US-ASCII" ? text.substr(0, size_of_ascii(text)) : text, seen);
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
    std::size_t const size = size_of_utf8(std::string_view(to, made.made), seen);
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
  has_sought = true;
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
