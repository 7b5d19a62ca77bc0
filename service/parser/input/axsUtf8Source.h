#pragma once

#include "axsEncoding.h"

#include <apString.h>

#include <cstddef>
#include <memory>
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

  /// Why there is no more to read; empty at the end of the source.
  apString const& fault() const noexcept { return wrong; }

  axsEncoding const& encoding() const noexcept { return found; }

private:
  std::size_t read_utf8(char* to, std::size_t room);
  std::size_t read_decoded(char* to, std::size_t room);
  std::size_t up_to_zero(char const* text, std::size_t size);
  void fill();
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
  apString wrong;
};
