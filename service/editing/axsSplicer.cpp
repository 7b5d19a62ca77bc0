#include "axsSplicer.h"

#include "axsEditFault.h"
#include "axsEncoder.h"
#include "axsSourceText.h"

#include <utUtf8.h>

#include <algorithm>
#include <unordered_map>

namespace
{
[[noreturn]] void refuse(std::string const& message)
{
  throw axsEditFault{axsEditFault::Kind::edit, axmParseError(apString::from_utf8(message)), {}};
}

// Follows markup as far as it takes to know where a reference to a character may stand.
class MarkupState
{
public:
  explicit MarkupState(bool is_in_tag) : end(is_in_tag ? ">" : "") {}

  bool takes_references() const { return end.empty() || quote != 0; }

  void pass(std::string_view text, std::size_t at)
  {
    std::string_view const rest = text.substr(at);
    if (end.empty())
      begin_markup(rest);
    else if (quote != 0)
      quote = rest[0] == quote ? '\0' : quote;
    else if (end == ">" && (rest[0] == '"' || rest[0] == '\''))
      quote = rest[0];
    else if (rest.substr(0, end.size()) == end)
      end = "";
  }

private:
  void begin_markup(std::string_view rest)
  {
    auto const begins = [&](std::string_view beginning) { return rest.substr(0, beginning.size()) == beginning; };
    if (begins("<!--"))
      end = "-->";
    else if (begins("<![CDATA["))
      end = "]]>";
    else if (begins("<?"))
      end = "?>";
    else if (begins("<"))
      end = ">";
  }

  // What ends the markup, and the quote of the value in it.
  std::string_view end;
  char quote = '\0';
};

class Writer
{
public:
  Writer(axsSourceText const& written, std::vector<axsSplice> const& made)
    : source(written),
      splices(made),
      encoder(axsEncoder::make(written.encoding().name))
  {
    if (encoder == nullptr)
      refuse("the document is in " + written.encoding().name + ", which this system can read but not write");
  }

  std::string write()
  {
    find_places();
    std::string bytes;
    std::size_t at = 0;
    for (axsSplice const& splice : splices)
    {
      copy(at, place_of(splice.replaced.begin), bytes);
      for (axsSplice::Piece const& piece : splice.pieces)
      {
        append(piece.text, splice.is_in_tag, bytes);
        copy(place_of(piece.copied.begin), place_of(piece.copied.end), bytes);
      }
      at = place_of(splice.replaced.end);
    }
    copy(at, source.bytes().size(), bytes);
    return bytes;
  }

private:
  void find_places()
  {
    std::vector<std::size_t> places;
    auto const add = [&](axsSpan span)
    {
      places.push_back(span.begin);
      places.push_back(span.end);
    };
    for (axsSplice const& splice : splices)
    {
      add(splice.replaced);
      for (axsSplice::Piece const& piece : splice.pieces)
        add(piece.copied);
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    std::vector<std::size_t> const in_bytes = source.byte_places(places);
    byte_places.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
      byte_places.emplace(places[i], in_bytes[i]);
  }

  std::size_t place_of(std::size_t in_text) const { return byte_places.at(in_text); }

  void copy(std::size_t from, std::size_t to, std::string& bytes) const
  {
    bytes.append(source.bytes().substr(from, to - from));
  }

  void append(std::string const& text, bool is_in_tag, std::string& bytes)
  {
    if (encoder->encode(text, bytes))
      return;
    MarkupState state(is_in_tag);
    for (std::size_t at = 0; at < text.size();)
    {
      utCodePoint const found = utUtf8::decode(text.data() + at, text.data() + text.size());
      auto const length = static_cast<std::size_t>(found.length);
      state.pass(text, at);
      if (!encoder->encode(std::string_view(text).substr(at, length), bytes))
        append_reference(found.code, state, bytes);
      at += length;
    }
  }

  void append_reference(char32_t code, MarkupState const& state, std::string& bytes)
  {
    std::string const reference = "&#" + std::to_string(static_cast<unsigned long>(code)) + ";";
    if (!state.takes_references() || !encoder->encode(reference, bytes))
      refuse("the character " + std::to_string(static_cast<unsigned long>(code)) + " cannot be written in " +
             source.encoding().name + ", the document's encoding, where only text and values can refer to it");
  }

  axsSourceText const& source;
  std::vector<axsSplice> const& splices;
  std::unique_ptr<axsEncoder> const encoder;
  std::unordered_map<std::size_t, std::size_t> byte_places;
};
}

std::string axsSplicer::apply(axsSourceText const& source, std::vector<axsSplice> splices)
{
  std::stable_sort(splices.begin(), splices.end(),
    [](axsSplice const& one, axsSplice const& other) { return one.replaced.begin < other.replaced.begin; });
  for (std::size_t i = 1; i < splices.size(); ++i)
    if (splices[i].replaced.begin < splices[i - 1].replaced.end)
      refuse("two of the edits are to change the same place of the document");
  return Writer(source, splices).write();
}
