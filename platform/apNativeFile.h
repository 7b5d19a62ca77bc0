#pragma once

#include <utString.h>

#include <cstddef>
#include <cstdio>

// The file system by names in UTF-8: as bytes where it takes bytes, wide where it takes wide text. Not installed.
namespace apNativeFile
{
// A stream on the file, null when it cannot be opened; `mode` as for fopen, in ASCII.
std::FILE* open(utString const& name, char const* mode);

// Reads `size` bytes, or those that are left; a signal that comes in between stops nothing. How many there were.
std::size_t read(std::FILE* file, void* bytes, std::size_t size);

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

// The descriptor of this process that a name such as /dev/fd/1 is for, -1 if it is for none. A link to such a name is
// resolved() to it.
int descriptor(utString const& name);

// A stream that writes to what the descriptor leads to; null when that cannot be.
std::FILE* open_descriptor(int number);

// The folder in which the name is, without the slash at its end.
utString folder_of(utString const& name);

// A new file without a name, in the folder of `name`, to be written and read. It may be read by everybody if `is_public`
// and the process does not mask that, else by its owner only. Null where there are none.
std::FILE* open_nameless(utString const& name, bool is_public);

// The same with the name `name`, which nothing has. Null when that cannot be; `exists` tells whether something has it.
std::FILE* open_new(utString const& name, bool is_public, bool& exists);

enum class Made
{
  yes,
  exists,
  no
};

// Gives a name to a file that has none, if nothing has that name.
Made give_name(std::FILE* file, utString const& name);

// Whether the file has more than one name (hard links).
bool has_further_names(utString const& name);

// Gives the stream's file the owner, the group and the permissions of the file `from`. Whether it has them all; yes if
// there is no such file.
bool take_permissions(std::FILE* file, utString const& from);

// Makes the stream's file end where the stream stands. False when that, or writing what it holds, fails.
bool end_here(std::FILE* file);

// Whether all that was written to the stream, and flushed, has reached the disk.
bool sync(std::FILE* file);

// Puts the file `from` in the place of `to`, which may exist, in one step. Whether that was done.
bool replace(utString const& from, utString const& to);
}
