// Writes the table of the faulty engines and of what sees them, as faults.txt holds it. An argument is a part of the names
// of the faults wanted.

#include "Faults.h"
#include "SuiteRun.h"

#include <cstdio>
#include <cstring>

int main(int argc, char** argv)
{
  for (Fault const& fault : all_faults())
  {
    if (argc > 1 && std::strstr(fault.name, argv[1]) == nullptr)
      continue;
    SuiteFolder const folder("axm fault table");
    Hooks hooks;
    fault.put_into(hooks);
    std::printf("%s\n", table_row(fault, run_suite(hooked_engine(quick_engine(), hooks))).c_str());
    std::fflush(stdout);
  }
}
