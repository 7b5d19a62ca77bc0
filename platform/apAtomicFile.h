#pragma once

#include <apExport.h>
#include <apPath.h>

#include <cstdio>

/// A file that takes the place of another in one step, once it is whole.
///
/// Until commit() it grows beside its target under a name of its own (the target's with process and number behind it,
/// ending in ".tmp"), and what is at the target stays as it is. Destroyed without commit(), it goes.
///
/// The target keeps its permissions, where the system lets us its owner and group as well; a symbolic link to it stays a
/// link. Something that is there and no regular file, such as a device or a pipe, is written straight: there is nothing to
/// be kept whole.
///
/// One object belongs to one thread at a time; several objects, of several threads and processes too, may have one
/// target: each commit() puts a whole file there. Memory that runs out is std::bad_alloc from the constructor, with no
/// file left behind.
class AP_API apAtomicFile
{
public:
  /// A file that is to take the place of `target`. Where that cannot be (a folder, no folder for it, a file that may not
  /// be written), stream() is null.
  explicit apAtomicFile(apPath const& target);

  apAtomicFile(apAtomicFile const&) = delete;
  apAtomicFile& operator=(apAtomicFile const&) = delete;
  ~apAtomicFile();

  /// What is to be written to; owned by this object. Null when the file could not be opened, and after commit().
  std::FILE* stream() const noexcept;

  /// Puts the file in its place when all of it is on the disk. False when it cannot be, or something could not be
  /// written; what was at the target is as it was then. To be called once.
  bool commit() noexcept;

private:
  std::FILE* file = nullptr;
  apPath place;     // what is replaced
  apPath temporary; // empty where the target is written straight
};
