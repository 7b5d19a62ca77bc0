#pragma once

#include <utString.h>

#include <cstdio>

// The file system by names in UTF-8: as bytes where it takes bytes, wide where it takes wide text. Not installed.
namespace apNativeFile
{
// A stream on the file, null when it cannot be opened; `mode` as for fopen, in ASCII.
std::FILE* open(utString const& name, char const* mode);

// Whether there is a file, folder or anything else of that name.
bool exists(utString const& name);

// Whether the file was there and has been deleted.
bool remove(utString const& name);

// Whether something is there that is no regular file: a folder, a device, a pipe. Links are followed.
bool is_special(utString const& name);

// Whether a file of that name, if there is one, may be written.
bool may_be_written(utString const& name);

// What a symbolic link leads to in the end, be that there or not; the name itself if it is of no link, or of one that
// leads to itself.
utString resolved(utString const& name);

// Gives the file `to` the permissions and, where that is allowed, owner and group of the file `from`, if there is one.
void keep_permissions(utString const& from, utString const& to);

// Whether all that was written to the stream, and flushed, has reached the disk.
bool sync(std::FILE* file);

// Puts the file `from` in the place of `to`, which may exist, in one step. Whether that was done.
bool replace(utString const& from, utString const& to);
}
