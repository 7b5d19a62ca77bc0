#include "apNativeFile.h"

#include <cstddef>
#include <cstring>

#if defined(_WIN32)
#  include <apString.h>

#  include <windows.h>
#else
#  include <sys/stat.h>
#  include <unistd.h>
#endif

namespace
{
// The system would read a name with a NUL in it as another, shorter one.
bool is_whole(utString const& name) noexcept
{
  return std::strlen(name.c_str()) == static_cast<std::size_t>(name.length());
}
}

#if defined(_WIN32)

std::FILE* apNativeFile::open(utString const& name, char const* mode)
{
  return is_whole(name) ? _wfopen(apString(name).c_str(), apString(mode).c_str()) : nullptr;
}

bool apNativeFile::exists(utString const& name)
{
  return is_whole(name) && GetFileAttributesW(apString(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool apNativeFile::remove(utString const& name)
{
  return is_whole(name) && DeleteFileW(apString(name).c_str()) != 0;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return is_whole(from) && is_whole(to) &&
         MoveFileExW(apString(from).c_str(), apString(to).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

#else

std::FILE* apNativeFile::open(utString const& name, char const* mode)
{
  return is_whole(name) ? std::fopen(name.c_str(), mode) : nullptr;
}

bool apNativeFile::exists(utString const& name)
{
  struct stat found;
  return is_whole(name) && stat(name.c_str(), &found) == 0;
}

bool apNativeFile::remove(utString const& name)
{
  return is_whole(name) && unlink(name.c_str()) == 0;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return is_whole(from) && is_whole(to) && std::rename(from.c_str(), to.c_str()) == 0;
}

#endif
