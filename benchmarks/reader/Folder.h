#pragma once

#include <filesystem>
#include <string>

// A folder that goes at the end.
class TemporaryFolder
{
public:
  TemporaryFolder();
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;
  ~TemporaryFolder();

  std::string file(std::string const& name) const { return (path / name).string(); }

private:
  std::filesystem::path path;
};
