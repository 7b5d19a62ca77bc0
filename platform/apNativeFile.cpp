#include "apNativeFile.h"

#if defined(_WIN32)

#  include <apString.h>

#  include <windows.h>

std::FILE* apNativeFile::open(utString const& name, char const* mode)
{
  return _wfopen(apString(name).c_str(), apString(mode).c_str());
}

bool apNativeFile::exists(utString const& name)
{
  return GetFileAttributesW(apString(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool apNativeFile::remove(utString const& name)
{
  return DeleteFileW(apString(name).c_str()) != 0;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return MoveFileExW(apString(from).c_str(), apString(to).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

#else

#  include <sys/stat.h>
#  include <unistd.h>

std::FILE* apNativeFile::open(utString const& name, char const* mode)
{
  return std::fopen(name.c_str(), mode);
}

bool apNativeFile::exists(utString const& name)
{
  struct stat found;
  return stat(name.c_str(), &found) == 0;
}

bool apNativeFile::remove(utString const& name)
{
  return unlink(name.c_str()) == 0;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return std::rename(from.c_str(), to.c_str()) == 0;
}

#endif
