#include "Timing.h"
#include "measures.h"
TemporaryFolder::TemporaryFolder() : path(std::filesystem::temp_directory_path() / "axm-bench-x")
{
  std::filesystem::create_directories(path);
}
TemporaryFolder::~TemporaryFolder()
{
  std::error_code failed;
  std::filesystem::remove_all(path, failed);
}
std::string generate_documents(TemporaryFolder const& f)
{
  return f.path.string();
}
void measure_growth(TemporaryFolder const&, int, Report&) {}
