#pragma once

#include "axsExport.h"

#include <apString.h>

#include <cstddef>
#include <cstdint>

/// Bytes that come one after the other, from wherever the caller has them: standard input, a file that is decompressed on
/// the way, a network connection.
///
/// Interface, implemented by callers of the engine. Used by one thread at a time.
class AXS_API axsByteStream
{
public:
  axsByteStream() = default;
  axsByteStream(axsByteStream const&) = delete;
  axsByteStream& operator=(axsByteStream const&) = delete;
  virtual ~axsByteStream();

  /// Reads up to `size` bytes to `to` and returns how many; 0 at the end, and after a failure.
  virtual std::size_t read(char* to, std::size_t size) = 0;

  /// Goes on reading so many bytes after the first one. False, with everything as it was, where that cannot be, as here:
  /// what has been read is gone then.
  virtual bool seek(std::uint64_t position);

  /// What has failed, in a sentence; empty as long as nothing has.
  virtual apString fault() const = 0;
};
