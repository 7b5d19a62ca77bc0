#pragma once

#include <filesystem>
#include <string>
#include <vector>

// A new folder that is gone with this object, laid out as the suite wants it: the program works in its subfolder "work".
class SuiteFolder
{
public:
  // `name`, in UTF-8, is its name among the temporary folders of the system.
  explicit SuiteFolder(std::string const& name);
  SuiteFolder(SuiteFolder const&) = delete;
  SuiteFolder& operator=(SuiteFolder const&) = delete;
  ~SuiteFolder();

  // All that is there, as paths relative to the folder, in order.
  std::vector<std::string> contents() const;

  std::filesystem::path const path;

private:
  std::filesystem::path const worked_in_before;
};
