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

// Puts the file `from` in the place of `to`, which may exist, in one step. Whether that was done.
bool replace(utString const& from, utString const& to);
}
