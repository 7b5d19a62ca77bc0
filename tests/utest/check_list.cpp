// Writes what the checks of the suite report, as checks.txt holds it.

#include "SuiteFolder.h"
#include "SuiteRun.h"

#include <cstdio>

int main()
{
  SuiteFolder const folder("axm check list");
  for (Check const& check : run_suite(default_engine()))
    std::printf("%s | %s | %s | %s\n", check.function.c_str(), check.description.c_str(), check.expression.c_str(),
      check.file.c_str());
}
