// Runs the suite in the folder that is named and writes the groups with failed checks.

#include "SuiteRun.h"

#include <cstdio>
#include <filesystem>

int main(int argc, char** argv)
{
  if (argc != 2)
    return 2;
  std::filesystem::current_path(std::filesystem::u8path(argv[1]));
  std::vector<std::string> const failed = failed_groups(run_fixed_classes(default_engine()));
  for (std::string const& group : failed)
    std::printf("%s\n", group.c_str());
  return failed.empty() ? 0 : 1;
}
