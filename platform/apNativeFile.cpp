#include "apNativeFile.h"

#include <cerrno>
#include <cstddef>
#include <cstring>

#if defined(_WIN32)
#  include "apString.h"

#  include <fcntl.h>
#  include <io.h>
#  include <sys/stat.h>
#  include <windows.h>
#else
#  include <fcntl.h>
#  include <sys/stat.h>
#  include <unistd.h>

#  include <climits>
#  include <cstdlib>
#  include <string>
#endif

namespace
{
// The system would read a name with a NUL in it as another, shorter one.
bool is_whole(utString const& name) noexcept
{
  return std::strlen(name.c_str()) == static_cast<std::size_t>(name.length());
}
}

std::size_t apNativeFile::read(std::FILE* file, void* bytes, std::size_t size)
{
  std::size_t done = 0;
  for (;;)
  {
    done += std::fread(static_cast<char*>(bytes) + done, 1, size - done, file);
    if (done == size || std::ferror(file) == 0 || errno != EINTR)
      return done;
    std::clearerr(file);
  }
}

utString apNativeFile::folder_of(utString const& name)
{
#if defined(_WIN32)
  std::size_t const slash = name.view().find_last_of("/\\");
#else
  std::size_t const slash = name.view().rfind('/');
#endif
  return slash == std::string_view::npos ? utString(".") : utString(name.c_str(), static_cast<int>(slash));
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
  if (!is_whole(name))
    return false;
  DWORD const attributes = GetFileAttributesW(apString(name).c_str());
  return attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

// Links are rare there, and made by administrators only.
utString apNativeFile::resolved(utString const& name)
{
  return name;
}

int apNativeFile::descriptor(utString const&)
{
  return -1;
}

std::FILE* apNativeFile::open_descriptor(int)
{
  return nullptr;
}

std::FILE* apNativeFile::open_nameless(utString const&, bool)
{
  return nullptr;
}

// Who may read it follows from its folder there.
std::FILE* apNativeFile::open_new(utString const& name, bool, bool& exists)
{
  int const number =
    _wopen(apString(name).c_str(), _O_CREAT | _O_EXCL | _O_RDWR | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
  exists = number < 0 && errno == EEXIST;
  if (number < 0)
    return nullptr;
  std::FILE* const file = _fdopen(number, "w+b");
  if (file == nullptr)
  {
    _close(number);
    remove(name);
  }
  return file;
}

apNativeFile::Made apNativeFile::give_name(std::FILE*, utString const&)
{
  return Made::no;
}

bool apNativeFile::has_further_names(utString const& name)
{
  HANDLE const handle = CreateFileW(apString(name).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
    nullptr, OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE)
    return false;
  BY_HANDLE_FILE_INFORMATION found;
  bool const has_more = GetFileInformationByHandle(handle, &found) != 0 && found.nNumberOfLinks > 1;
  CloseHandle(handle);
  return has_more;
}

// A new file has those of its folder there, as the old one had.
bool apNativeFile::take_permissions(std::FILE*, utString const&)
{
  return true;
}

bool apNativeFile::end_here(std::FILE* file)
{
  return std::fflush(file) == 0 && _chsize_s(_fileno(file), _ftelli64(file)) == 0;
}

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

namespace
{
// A stream on the descriptor, which is closed when there is none.
std::FILE* stream_on(int descriptor, char const* mode)
{
  std::FILE* const file = fdopen(descriptor, mode);
  if (file == nullptr)
    close(descriptor);
  return file;
}

mode_t mode_of_new(bool is_public)
{
  return is_public ? 0666 : 0600;
}
}

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
  int const max_links = 40;
  utString reached = name;
  for (int links = 0; links < max_links; ++links)
  {
    char text[PATH_MAX];
    bool const may_be_link = is_whole(reached) && descriptor(reached) < 0;
    ssize_t const length = may_be_link ? readlink(reached.c_str(), text, sizeof text) : -1;
    if (length <= 0)
      return reached;
    utString const link(text, static_cast<int>(length));
    reached = text[0] == '/' ? link : folder_of(reached) + utString("/") + link;
  }
  return name;
}

int apNativeFile::descriptor(utString const& name)
{
  static utString const folders[] = {
    utString("/dev/fd/"), utString("/proc/self/fd/"), utString("/proc/thread-self/fd/")};
  for (utString const& folder : folders)
  {
    if (name.view().substr(0, folder.view().size()) != folder.view())
      continue;
    char const* const digits = name.c_str() + folder.length();
    char* end = nullptr;
    long const number = std::strtol(digits, &end, 10);
    if (end != digits && *end == '\0' && number >= 0 && number <= INT_MAX)
      return static_cast<int>(number);
  }
  return -1;
}

std::FILE* apNativeFile::open_descriptor(int number)
{
  // Of its own, so that closing it leaves that of the process open.
  int const copy = fcntl(number, F_DUPFD_CLOEXEC, 0);
  return copy < 0 ? nullptr : stream_on(copy, "wb");
}

std::FILE* apNativeFile::open_nameless(utString const& name, bool is_public)
{
#  if defined(O_TMPFILE)
  // A folder at the root has an empty name here.
  utString const folder = folder_of(name) + utString("/");
  int const number = ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode_of_new(is_public));
  return number < 0 ? nullptr : stream_on(number, "w+b");
#  else
  static_cast<void>(name);
  static_cast<void>(is_public);
  return nullptr;
#  endif
}

std::FILE* apNativeFile::open_new(utString const& name, bool is_public, bool& exists)
{
  int const number = ::open(name.c_str(), O_CREAT | O_EXCL | O_NOFOLLOW | O_RDWR | O_CLOEXEC, mode_of_new(is_public));
  exists = number < 0 && errno == EEXIST;
  if (number < 0)
    return nullptr;
  std::FILE* const file = stream_on(number, "w+b");
  if (file == nullptr)
    remove(name);
  return file;
}

apNativeFile::Made apNativeFile::give_name(std::FILE* file, utString const& name)
{
  utString const open_file = utString("/proc/self/fd/") + utString(std::to_string(fileno(file)).c_str());
  if (linkat(AT_FDCWD, open_file.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0)
    return Made::yes;
  return errno == EEXIST ? Made::exists : Made::no;
}

bool apNativeFile::has_further_names(utString const& name)
{
  struct stat found;
  if (stat(name.c_str(), &found) == 0)
    return found.st_nlink > 1;
  // Where that cannot be told, there may be.
  return errno != ENOENT;
}

bool apNativeFile::take_permissions(std::FILE* file, utString const& from)
{
  struct stat found;
  if (stat(from.c_str(), &found) != 0)
    return errno == ENOENT;
  struct stat own;
  int const number = fileno(file);
  if (fstat(number, &own) != 0)
    return false;
  bool const is_owned = own.st_uid == found.st_uid && own.st_gid == found.st_gid;
  // The permissions last, for a change of the owner takes some of them.
  return (is_owned || fchown(number, found.st_uid, found.st_gid) == 0) && fchmod(number, found.st_mode & 07777) == 0;
}

bool apNativeFile::sync(std::FILE* file)
{
  int result;
  do
    result = fsync(fileno(file));
  while (result != 0 && errno == EINTR);
  // Some file systems have no such thing, and say so.
  return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool apNativeFile::end_here(std::FILE* file)
{
  if (std::fflush(file) != 0)
    return false;
  int result;
  do
    result = ftruncate(fileno(file), ftello(file));
  while (result != 0 && errno == EINTR);
  return result == 0;
}

bool apNativeFile::replace(utString const& from, utString const& to)
{
  return is_whole(from) && is_whole(to) && std::rename(from.c_str(), to.c_str()) == 0;
}

#endif
