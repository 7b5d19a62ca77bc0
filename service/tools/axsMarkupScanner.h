#pragma once

#include <cstddef>
#include <string_view>

/// Takes the text of a document apart into pieces of markup and what stands between them, as they are written. The text is
/// known to be well-formed: a parser has read it. All time is linear in the text.
class axsMarkupScanner
{
public:
  enum class Kind
  {
    declaration,
    doctype,
    start_tag,
    empty_tag,
    end_tag,
    text,
    cdata,
    comment,
    instruction
  };

  /// `document` must live longer.
  explicit axsMarkupScanner(std::string_view document) noexcept : text(document) {}

  /// Goes on to the next piece. False at the end of the text.
  bool next() noexcept;

  Kind kind() const noexcept { return found; }

  /// The piece as it is written.
  std::string_view piece() const noexcept { return current; }

  /// Of a tag, the name of its element.
  std::string_view name() const noexcept;

  /// Takes the next attribute of a start tag or an empty tag apart, from its name to the quote at its end, with nothing
  /// around the equals sign: `value` has its quotes. `at` is 0 for the first one. False after the last one.
  bool next_attribute(std::size_t& at, std::string_view& name, std::string_view& value) const noexcept;

private:
  std::size_t end_of_markup() noexcept;
  std::size_t after(std::string_view mark, std::size_t from) const noexcept;
  std::size_t after_doctype(std::size_t from) const noexcept;
  std::size_t after_tag(std::size_t from) const noexcept;

  std::string_view text;
  std::string_view current;
  std::size_t position = 0;
  Kind found = Kind::text;
};
