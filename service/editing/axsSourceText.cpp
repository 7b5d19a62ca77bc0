#include "axsSourceText.h"

#include "axsDecoder.h"
#include "axsMemorySource.h"
#include "axsUtf8Source.h"

#include <algorithm>

namespace
{
std::size_t const piece = 64 * 1024;

bool is_blank_character(char c)
{
  return c == ' ' || c == '\t';
}

// Follows a decoder through the bytes of a document.
class Walk
{
public:
  Walk(std::string_view bytes, axsDecoder& followed) : source(bytes), decoder(followed) {}

  // Goes on until so many bytes of text have been made; how many bytes that took.
  std::size_t go_to(std::size_t place)
  {
    while (place - made >= 2 * axsDecoder::min_room && step(source.size() - taken, std::min(place - made, piece)))
    {
    }
    // A character at a time: it is not known how many bytes that are.
    for (std::size_t length = 1; made < place && taken + length <= source.size();)
      length = step(length, axsDecoder::min_room) ? 1 : length + 1;
    return taken;
  }

private:
  bool step(std::size_t bytes, std::size_t room)
  {
    scratch.resize(std::max(scratch.size(), room));
    axsDecoder::Result const result = decoder.decode(source.substr(taken, bytes), scratch.data(), room, false);
    taken += result.taken;
    made += result.made;
    return result.taken > 0;
  }

  std::string_view source;
  axsDecoder& decoder;
  std::string scratch;
  std::size_t taken = 0;
  std::size_t made = 0;
};

std::string_view line_end_in(std::string_view text)
{
  std::size_t const at = text.find_first_of("\r\n");
  if (at == std::string_view::npos)
    return "\n";
  return text.substr(at, text.substr(at, 2) == "\r\n" ? 2 : 1);
}
}

axsSourceText::axsSourceText(std::string_view given, apPath const& file) : source(given)
{
  axsMemorySource memory(given, file);
  axsUtf8Source utf8(memory.source());
  found = utf8.encoding();
  if (!is_utf8())
  {
    std::string scratch(piece, '\0');
    while (std::size_t const count = utf8.read(scratch.data(), scratch.size()))
      decoded.append(scratch, 0, count);
  }
  first_line_end = line_end_in(text());
}

std::vector<std::size_t> axsSourceText::byte_places(std::vector<std::size_t> const& places) const
{
  std::vector<std::size_t> all;
  all.reserve(places.size());
  auto const decoder = is_utf8() ? nullptr : axsDecoder::make(found.name);
  std::optional<Walk> walk;
  if (decoder != nullptr)
    walk.emplace(source.substr(found.mark_size), *decoder);
  for (std::size_t const place : places)
    all.push_back(found.mark_size + (walk ? walk->go_to(place) : place));
  return all;
}

std::string axsSourceText::with_line_ends(std::string_view other) const
{
  std::string made;
  for (std::size_t at = 0; at < other.size(); ++at)
  {
    bool const is_return = other[at] == '\r';
    if (is_return || other[at] == '\n')
      made += first_line_end;
    else
      made += other[at];
    at += is_return && other.substr(at, 2) == "\r\n" ? 1 : 0;
  }
  return made;
}

std::optional<axsSpan> axsSourceText::lines_of(axsSpan span) const noexcept
{
  std::string_view const all = text();
  axsSpan lines = span;
  while (lines.begin > 0 && is_blank_character(all[lines.begin - 1]))
    --lines.begin;
  while (lines.end < all.size() && is_blank_character(all[lines.end]))
    ++lines.end;
  bool const begins = lines.begin == 0 || all[lines.begin - 1] == '\n' || all[lines.begin - 1] == '\r';
  bool const ends = lines.end == all.size() || all[lines.end] == '\n' || all[lines.end] == '\r';
  if (!begins || !ends)
    return std::nullopt;
  if (lines.end < all.size())
    lines.end += all.substr(lines.end, 2) == "\r\n" ? 2 : 1;
  return lines;
}

bool axsSourceText::is_blank(axsSpan span) const noexcept
{
  std::string_view const part = text(span);
  return std::all_of(part.begin(), part.end(), is_blank_character);
}
