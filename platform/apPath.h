#pragma once

#include "apExport.h"
#include "apString.h"

#include <utString.h>

#include <cstdio>
#include <iosfwd>

/// The path of a file or folder: text in Unicode, used as it stands on every system and under every locale.
///
/// A value type; one object belongs to one thread at a time. Nothing in it is decoded or expanded: a percent sign is a
/// percent sign, and a URL is a strange file name. A path with a NUL in it names nothing. Failures are results,
/// but for memory that runs out: that is std::bad_alloc, from the constructors and, where names are wide, from whatever
/// asks the file system.
class AP_API apPath
{
public:
  /// The empty path, which names nothing.
  apPath() noexcept;

  /// From UTF-8. On a system whose file names are bytes, those that are not UTF-8 are kept and name what they name there.
  apPath(char const* utf8);
  apPath(utString const& utf8);

  /// From wide text; what is not Unicode in it becomes U+FFFD.
  apPath(wchar_t const* wide);
  apPath(apString const& wide);

  /// The path in UTF-8, as it was given.
  utString path() const noexcept;

  bool empty() const noexcept;

  /// Whether a file, folder or anything else of that name is there.
  bool exists() const;

  /// Deletes the file, if it is there; a folder is left alone. False when it still is there.
  bool delete_file() const;

  /// Opens the file in one of the modes below, in the C library's terms; the caller closes the stream.
  /// Null when that fails.
  std::FILE* file_open(char const* mode) const;

  /// For reading an existing file, byte by byte.
  static char const* read_mode() noexcept;

  /// For writing a new file in the place of any old one, byte by byte.
  static char const* write_mode() noexcept;

  /// Puts the file of this name in the place of `target`, which may exist, in one step: whoever opens `target` meets the
  /// old file or the new one. Both must be on one file system. False, with both as they were, when that fails.
  bool replace(apPath const& target) const;

  /// Equal as texts; two spellings of one place differ.
  bool operator==(apPath const& other) const noexcept;
  bool operator!=(apPath const& other) const noexcept;

private:
  utString name;
};

/// Writes the path as it was given, in UTF-8.
AP_API std::ostream& operator<<(std::ostream& out, apPath const& path);
