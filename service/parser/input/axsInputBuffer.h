#pragma once

#include "axsLineEnds.h"
#include "axsPlace.h"
#include "axsReadError.h"
#include "axsUtf8Source.h"

#include <apString.h>

#include <cstddef>
#include <cstdint>
#include <memory>

class axsSource;

/// The part of a document that is being read: a piece of it in memory that moves on through a source, and grows when
/// something does not fit. It has the text in well-formed UTF-8 without zero bytes, whatever the source has.
///
/// After its last byte stands a zero byte, and after that some bytes more may be read, so that who reads on needs no
/// look at where the end is.
class axsInputBuffer
{
public:
  /// The beginning of the source, which is at its start and must live longer. Throws as axsUtf8Source does.
  explicit axsInputBuffer(axsSource& source);

  char const* begin() const noexcept { return bytes.get() + axsLineEnds::bytes_before; }
  char const* end() const noexcept { return begin() + filled; }

  /// Whether nothing comes after the end.
  bool is_last() const noexcept { return last; }

  /// Whether what comes after the end cannot be read or is not in the encoding of the document, which advance() then tells.
  bool is_stopped() const noexcept { return failure != nullptr || !source.fault().empty(); }

  /// Whether U+FFFE or U+FFFF, which are no characters of XML (2.2, [2] Char), were read so far.
  bool has_excluded() const noexcept { return source.has_excluded(); }

  /// How many bytes it holds before it grows.
  std::size_t capacity() const noexcept { return room; }

  /// The encoding of the document.
  axsEncoding const& encoding() const noexcept { return source.encoding(); }

  /// How many bytes of UTF-8 stand before `at`, which points into the buffer.
  std::uint64_t position(char const* at) const noexcept { return passed + static_cast<std::uint64_t>(at - begin()); }

  /// Line and column of `at`, which points to the beginning of a character in the buffer or to its end. Takes time in
  /// proportion to the bytes between `at` and where the last one was that was asked for; if `at` stands before that,
  /// also to the length of its line as far as it is in the buffer.
  axsPlace place(char const* at) const noexcept;

  /// From now on lines end as in XML 1.1. Said when nothing but a declaration has been read.
  void take_xml_1_1_line_ends() noexcept { line_ends = axsLineEnds::Rule::xml_1_1; }

  /// Lets go what is before `from`, which points into the buffer, and reads more, if something comes. Returns where that
  /// byte stands now. Throws axsReadError when the source cannot be read after the end and when what comes after the
  /// end is not in the encoding of the document, std::bad_alloc when memory runs out.
  char const* advance(char const* from);

  /// A place to which return_to() can go back.
  struct Mark
  {
    std::uint64_t position;
    axsPlace place;
  };
  Mark mark(char const* at) const noexcept { return {position(at), place(at)}; }

  /// Reads again from `mark` on, which must be at the beginning of a character. Returns where that stands now. Throws as
  /// axsSource::seek() does.
  char const* return_to(Mark const& mark);

private:
  void fill();

  apString url;
  axsUtf8Source source;
  // First the last ones that were let go.
  std::unique_ptr<char[]> bytes;
  std::size_t room;
  std::size_t filled = 0;
  // The bytes before the buffer.
  std::uint64_t passed = 0;
  bool last = false;
  // Why the source could not be read after the end; null if it could.
  std::unique_ptr<axsReadError> failure;
  axsLineEnds::Rule line_ends = axsLineEnds::Rule::xml_1_0;
  axsPlace begin_place;
  // What was asked for last.
  mutable char const* known;
  mutable axsPlace known_place;
};
