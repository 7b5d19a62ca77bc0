#include "Folder.h"

#include <unistd.h>

TemporaryFolder::TemporaryFolder()
  : path(std::filesystem::temp_directory_path() / ("bench_reader_" + std::to_string(getpid())))
{
  std::filesystem::create_directories(path);
}

TemporaryFolder::~TemporaryFolder()
{
  std::error_code failed;
  std::filesystem::remove_all(path, failed);
}
