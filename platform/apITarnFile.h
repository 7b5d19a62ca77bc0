#pragma once

#include "apExport.h"

/// An open file to read from.
///
/// Interface; one file is used by one thread at a time. Failures are results. Offsets, positions and sizes are in bytes.
class AP_API apITarnFile
{
public:
  apITarnFile();
  apITarnFile(apITarnFile const&) = delete;
  apITarnFile& operator=(apITarnFile const&) = delete;
  virtual ~apITarnFile();

  /// Moves to `offset` from the start (`origin` 0), from where it stands (1) or from the end (2), as the C library's
  /// fseek does. False, with the position as it was, when that cannot be done.
  virtual bool seek(int offset, int origin) = 0;

  /// Where it stands, counted from the start; negative when that cannot be told or does not fit an `int`.
  virtual int tell() = 0;

  /// Back to the start. False when that cannot be done.
  virtual bool rewind() = 0;

  /// Reads up to `count` elements of `size` bytes each to `buffer` and returns how many came whole; fewer mean the end
  /// of the file or a failure.
  virtual int read(void* buffer, int size, int count) = 0;
};
