#include "axsLocalFile.h"

#include "axsReadError.h"
#include "axsSource.h"

#include <optional>

#if defined(_WIN32)
#  include <windows.h>
#else
#  include <sys/stat.h>
#endif

namespace
{
struct Found
{
  bool is_folder;
  bool is_regular;
  std::string identity;
};

#if defined(_WIN32)

class Handle
{
public:
  explicit Handle(apPath const& file)
    : handle(CreateFileW(apString(file.path()).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr))
  {
  }
  Handle(Handle const&) = delete;
  Handle& operator=(Handle const&) = delete;
  ~Handle()
  {
    if (is_open())
      CloseHandle(handle);
  }

  bool is_open() const { return handle != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle; }

private:
  HANDLE handle;
};

std::optional<Found> find(apPath const& file)
{
  Handle const handle(file);
  if (!handle.is_open())
    return {};
  BY_HANDLE_FILE_INFORMATION about;
  bool const is_known = GetFileType(handle.get()) == FILE_TYPE_DISK && GetFileInformationByHandle(handle.get(), &about);
  if (!is_known)
    return Found{false, false, {}};
  bool const is_folder = (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return Found{is_folder, !is_folder,
    std::to_string(about.dwVolumeSerialNumber) + ':' + std::to_string(about.nFileIndexHigh) + ':' +
      std::to_string(about.nFileIndexLow)};
}

#else

std::optional<Found> find(apPath const& file)
{
  utString const path = file.path();
  struct stat about;
  if (stat(path.c_str(), &about) != 0)
    return {};
  return Found{
    S_ISDIR(about.st_mode), S_ISREG(about.st_mode), std::to_string(about.st_dev) + ':' + std::to_string(about.st_ino)};
}

#endif

[[noreturn]] void refuse(apPath const& file, apString const& reason)
{
  apString const path(file.path());
  throw axsReadError{APSTRING("Cannot read the file ") + path + APSTRING(": it is ") + reason, path};
}
}

std::unique_ptr<axsSource> axsLocalFile::open(apPath const& file)
{
  std::optional<Found> const found = find(file);
  if (found && found->is_folder)
    refuse(file, APSTRING("a folder"));
  if (found && !found->is_regular)
    refuse(file, APSTRING("a pipe or a device"));
  return std::make_unique<axsSource>(file);
}

std::string axsLocalFile::identity(apPath const& file)
{
  std::optional<Found> const found = find(file);
  if (found && !found->identity.empty())
    return found->identity;
  utString const path = file.path();
  return std::string(path.c_str(), static_cast<std::size_t>(path.length()));
}
