#include "apNativeFile.h"

#include <cstddef>
#include <cstring>

#if defined(_WIN32)
#  include <apString.h>

#  include <io.h>
#  include <windows.h>
#else
#  include <sys/stat.h>
#  include <unistd.h>

#  include <cerrno>
#  include <climits>
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

bool apNativeFile::is_special(utString const& name)
{
  DWORD const attributes = is_whole(name) ? GetFileAttributesW(apString(name).c_str()) : INVALID_FILE_ATTRIBUTES;
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0;
}

bool apNativeFile::may_be_written(utString const& name)
{
  DWORD const attributes = is_whole(name) ? GetFileAttributesW(apString(name).c_str()) : INVALID_FILE_ATTRIBUTES;
  return attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

// Links are rare there, and made by administrators only.
utString apNativeFile::resolved(utString const& name)
{
  return name;
}

// A new file has those of its folder there, as the old one had.
void apNativeFile::keep_permissions(utString const&, utString const&) {}

bool apNativeFile::sync(std::FILE* file)
{
  return _commit(_fileno(file)) == 0;
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

bool apNativeFile::is_special(utString const& name)
{
  struct stat found;
  return is_whole(name) && stat(name.c_str(), &found) == 0 && !S_ISREG(found.st_mode);
}

bool apNativeFile::may_be_written(utString const& name)
{
  return is_whole(name) && (access(name.c_str(), W_OK) == 0 || errno == ENOENT);
}

utString apNativeFile::resolved(utString const& name)
{
  // As many as systems follow.
  int const most_links = 40;
  utString reached = name;
  for (int links = 0; links < most_links; ++links)
  {
    char text[PATH_MAX];
    ssize_t const length = is_whole(reached) ? readlink(reached.c_str(), text, sizeof text) : -1;
    if (length <= 0)
      return reached;
    utString const link(text, static_cast<int>(length));
    char const* const slash = std::strrchr(reached.c_str(), '/');
    bool const is_relative = text[0] != '/' && slash != nullptr;
    reached = is_relative ? utString(reached.c_str(), static_cast<int>(slash + 1 - reached.c_str())) + link : link;
  }
  return name;
}

void apNativeFile::keep_permissions(utString const& from, utString const& to)
{
  struct stat found;
  if (stat(from.c_str(), &found) != 0)
    return;
  // The permissions last, for a change of the owner takes some of them.
  bool const owned = chown(to.c_str(), found.st_uid, found.st_gid) == 0;
  chmod(to.c_str(), found.st_mode & (owned ? 07777 : 0777));
}

bool apNativeFile::sync(std::FILE* file)
{
  // Some file systems have no such thing, and say so.
  return fsync(fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return is_whole(from) && is_whole(to) && std::rename(from.c_str(), to.c_str()) == 0;
}

#endif
