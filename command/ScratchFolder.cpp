#include "ScratchFolder.h"

#include <apProcessControl.h>

#include <string>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

// The name tells whose it is; the number is counted up until no folder has it.
fs::path make_folder()
{
  std::string const name = "axm-" + std::to_string(apProcessControl::getpid()) + "-";
  for (int number = 0;; ++number)
  {
    fs::path folder = fs::temp_directory_path() / (name + std::to_string(number));
    if (fs::create_directory(folder))
      return folder;
  }
}
}

ScratchFolder::ScratchFolder() : worked_in_before(fs::current_path()), folder(make_folder())
{
  fs::create_directory(folder / "work");
  fs::current_path(folder / "work");
}

ScratchFolder::~ScratchFolder()
{
  std::error_code ignored;
  fs::current_path(worked_in_before, ignored);
  fs::remove_all(folder, ignored);
}
