#pragma once

#include "apExport.h"
#include "apITarnFile.h"
#include "apTarnMode.h"

#include <utString.h>

#include <cstdio>

/// A file of the file system, read through the C library.
///
/// Owns the open stream and closes it when it goes away. A file that could not be opened is no error here: every
/// operation of it fails.
class AP_API apTarnFileStdio : public apITarnFile
{
public:
  /// Opens the file that `name`, a path in UTF-8, names on every system and under every locale.
  apTarnFileStdio(utString const& name, apTarnMode mode);
  ~apTarnFileStdio() override;

  bool seek(int offset, int origin) override;
  int tell() override;
  bool rewind() override;
  int read(void* buffer, int size, int count) override;

private:
  std::FILE* stream;
};
