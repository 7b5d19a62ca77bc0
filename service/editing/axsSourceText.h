#pragma once

#include "axsEncoding.h"
#include "axsSpan.h"

#include <apPath.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A document as it is written: its bytes and, whatever their encoding, their text in UTF-8. What stands where in the text is
/// known by its place there.
class axsSourceText
{
public:
  /// Of a document that has been parsed; `given` must live longer. Throws axsReadError, std::bad_alloc when memory runs out.
  axsSourceText(std::string_view given, apPath const& file);

  std::string_view bytes() const noexcept { return source; }

  /// Without a byte-order mark.
  std::string_view text() const noexcept { return is_utf8() ? source.substr(found.mark_size) : decoded; }
  std::string_view text(axsSpan span) const noexcept { return text().substr(span.begin, span.size()); }

  axsEncoding const& encoding() const noexcept { return found; }

  /// Where the bytes of each of `places` of the text begin, which are at the beginning of a character or the end of the text,
  /// in their order. In one pass over the document, or none where it is in UTF-8.
  std::vector<std::size_t> byte_places(std::vector<std::size_t> const& places) const;

  /// How its first line ends; as a line feed if there is only one.
  std::string_view line_end() const noexcept { return first_line_end; }

  /// The same text with such line ends.
  std::string with_line_ends(std::string_view other) const;

  /// The whole lines of what stands alone on them, but for blanks, with the end of the last one; none of what does not.
  std::optional<axsSpan> lines_of(axsSpan span) const noexcept;

  /// Whether there are only spaces and tabs in it.
  bool is_blank(axsSpan span) const noexcept;

private:
  bool is_utf8() const noexcept { return found.name == "UTF-8" || found.name == "US-ASCII"; }

  std::string_view source;
  axsEncoding found;
  std::string decoded;
  std::string_view first_line_end = "\n";
};
