#pragma once

#include "apExport.h"
#include "apPath.h"

#include <cstdio>

/// A file that takes the place of another in one step, once it is whole.
///
/// Until commit() what is at the target stays as it is. Destroyed without commit(), or with the process, the new file is
/// gone: where the system knows files without a name, it has none before; elsewhere it has a short random one in the
/// folder of the target, ".ax" with ten characters and ".tmp", that nothing else had.
///
/// What takes the place has the permissions, owner and group of what was there before it takes the place, and may be read
/// by its owner only until then; access lists and extended attributes do not go over. A symbolic link to the target stays
/// a link.
///
/// The file is written in place instead, at commit() and from a copy that is whole by then, where nothing can take its
/// place although it may be written: in a folder without permission, where the file is mounted by itself, belongs to
/// somebody else whose it has to stay, or has further names (hard links), all of which show the new bytes. If that fails
/// halfway, the old bytes are put back; only a process that ends halfway leaves neither.
///
/// What is there and no regular file, such as a device or a pipe, is written straight: there is nothing to be kept whole.
/// So are the descriptors of the process (/dev/stdout, /dev/fd/N), whatever they lead to.
///
/// One object belongs to one thread at a time; several objects, of several threads and processes too, may have one
/// target: each commit() that is not in place puts a whole file there. Memory that runs out is std::bad_alloc from the
/// constructor, with no file left.
class AP_API apAtomicFile
{
public:
  /// A file that is to take the place of `target`. Where that cannot be (a folder, no folder for it, a file that may not
  /// be written), stream() is null.
  explicit apAtomicFile(apPath const& target);

  apAtomicFile(apAtomicFile const&) = delete;
  apAtomicFile& operator=(apAtomicFile const&) = delete;
  ~apAtomicFile();

  /// What is to be written to; owned by this object. Null when the file could not be opened (errno has the system's reason
  /// after the constructor), and after commit().
  std::FILE* stream() const noexcept;

  /// Puts the file in its place when all of it is on the disk. False when it cannot be, or something could not be
  /// written; what was at the target is as it was then, and errno has the reason, if the system gave one after the bytes
  /// were written. To be called once.
  bool commit() noexcept;

private:
  std::FILE* file = nullptr;
  apPath place;     // what is replaced; empty where the target is written straight
  apPath temporary; // the new file as long as it has a name of its own
};
