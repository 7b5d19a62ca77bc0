#pragma once

#include <filesystem>

/// A new folder of its own among the system's temporary ones, with all that is put into it; gone with this object.
///
/// While it lives, the program works in its subfolder "work". Throws std::filesystem::filesystem_error when it cannot be
/// made.
class ScratchFolder
{
public:
  ScratchFolder();
  ScratchFolder(ScratchFolder const&) = delete;
  ScratchFolder& operator=(ScratchFolder const&) = delete;
  ~ScratchFolder();

  std::filesystem::path const& path() const { return folder; }

private:
  std::filesystem::path const worked_in_before;
  std::filesystem::path folder;
};
