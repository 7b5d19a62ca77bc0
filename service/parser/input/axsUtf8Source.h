#pragma once

#include "axsEncoding.h"
#include "axsUtf8Scan.h"

#include <apString.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class axsDecoder;
class axsSource;

/// The text of an entity: what the bytes of its source are in UTF-8, whatever their encoding, without a byte-order mark.
///
/// It ends before the first byte that has no meaning in the encoding (XML 1.0, 4.3.3), and before a zero byte.
class axsUtf8Source
{
public:
  /// What read() needs at least.
  static constexpr std::size_t min_room = 32;

  /// Of the source from its start, which must live longer. Throws as axsEncoding::of() and read() do.
  explicit axsUtf8Source(axsSource& source);
  ~axsUtf8Source();

  /// Reads on: writes whole characters to `to`, where there are `room` bytes, and returns how many bytes. 0 at the end
  /// and before what is wrong. What has UTF-8 already is read to where it is wanted, without a copy. Throws axsReadError
  /// when the source cannot be read, std::bad_alloc when memory runs out.
  std::size_t read(char* to, std::size_t room);

  /// Goes on with the character that stands after so many bytes of UTF-8, which have been read before. Throws as
  /// axsSource::seek() does. Takes constant time where the encoding has no states.
  void seek(std::uint64_t position);

  /// Why there is no more to read; empty at the end of the source.
  apString const& fault() const noexcept { return wrong; }

  axsEncoding const& encoding() const noexcept { return found; }

  /// Whether U+FFFE or U+FFFF, which are no characters of XML (2.2, [2] Char), were read.
  bool has_excluded() const noexcept { return seen.has_excluded; }

  /// Whether line_ends() is known: not after a seek().
  bool has_line_ends() const noexcept { return !has_sought; }

  /// How many line ends of XML 1.0 (2.11) were read.
  std::uint64_t line_ends() const noexcept { return seen.line_ends; }

private:
  std::size_t read_utf8(char* to, std::size_t room);
  std::size_t read_decoded(char* to, std::size_t room);
  void fill();
  void note_place();
  void skip(std::uint64_t bytes);
  void stop_at(char byte);

  axsSource& source;
  axsEncoding found;
  // Null where the source has UTF-8 already.
  std::unique_ptr<axsDecoder> decoder;
  // Bytes that have been read but are not text yet: a part of a character, or what waits for the decoder.
  std::vector<char> rest;
  // How many of them the decoder has taken.
  std::size_t decoded = 0;
  bool at_end = false;
  // Of what is decoded: how many bytes of UTF-8 were made and how many bytes of the source that took, now and from time
  // to time before.
  struct Place
  {
    std::uint64_t made;
    std::uint64_t taken;
  };
  Place now{0, 0};
  std::vector<Place> places;
  // What was decoded too much when it went on from a place.
  std::string surplus;
  apString wrong;
  axsUtf8Scan::Seen seen;
  bool has_sought = false;
};
