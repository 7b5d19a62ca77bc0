#include "StandardOutput.h"

#if defined(_WIN32)
#  include <windows.h>
#else
#  include <sys/stat.h>
#  include <unistd.h>
#endif

#if defined(_WIN32)
struct StandardOutput::Identity
{
  DWORD type = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE));

  bool operator==(Identity const& other) const { return type == other.type; }
};
#else
struct StandardOutput::Identity
{
  Identity() : known(fstat(STDOUT_FILENO, &data) == 0) {}

  bool operator==(Identity const& other) const
  {
    if (!known || !other.known)
      return known == other.known;
    return data.st_dev == other.data.st_dev && data.st_ino == other.data.st_ino;
  }

  struct stat data = {};
  bool known;
};
#endif

StandardOutput::StandardOutput() : identity(std::make_unique<Identity>()) {}
StandardOutput::~StandardOutput() = default;

bool StandardOutput::is_open() const
{
  return *identity == Identity();
}
