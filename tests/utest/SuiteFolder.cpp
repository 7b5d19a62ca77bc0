#include "SuiteFolder.h"

#include <apProcessControl.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace
{
// The data folder of the sources, whatever folder the program works in.
fs::path source_data()
{
  return fs::u8path(AXM_DATA_FOLDER);
}
}

SuiteFolder::SuiteFolder(std::string const& name)
  : path(fs::temp_directory_path() / fs::u8path(name + "." + std::to_string(apProcessControl::getpid()))),
    worked_in_before(fs::current_path())
{
  fs::remove_all(path);
  fs::create_directories(path / "work");
  fs::create_directories(path / "data");
  fs::copy_file(source_data() / "in_memory_test_schema.xsd", path / "data" / "in_memory_test_schema.xsd");
  fs::current_path(path / "work");
}

SuiteFolder::~SuiteFolder()
{
  std::error_code ignored;
  fs::current_path(worked_in_before, ignored);
  fs::remove_all(path, ignored);
}

std::vector<std::string> SuiteFolder::contents() const
{
  std::vector<std::string> names;
  for (fs::directory_entry const& entry : fs::recursive_directory_iterator(path))
    names.push_back(entry.path().lexically_relative(path).generic_u8string());
  std::sort(names.begin(), names.end());
  return names;
}
