// Writes the table of the faulty engines and of what sees them, as faults.txt holds it. An argument is a part of the names
// of the faults wanted, --subtle for those that only the generated cases see, or --promises for those read off the
// headers.

#include "Faults.h"
#include "SuiteRun.h"

#include <cstdio>
#include <cstring>

namespace
{
void write(std::vector<Fault> const& faults, std::vector<Check> (*run)(Factory const& factory), char const* wanted)
{
  for (Fault const& fault : faults)
  {
    if (wanted != nullptr && std::strstr(fault.name, wanted) == nullptr &&
        std::strstr(fault.operation, wanted) == nullptr)
      continue;
    std::printf("%s\n", run_with(fault, run).c_str());
    std::fflush(stdout);
  }
}
}

int main(int argc, char** argv)
{
  bool const subtle_only = argc > 1 && std::strcmp(argv[1], "--subtle") == 0;
  bool const promises_only = argc > 1 && std::strcmp(argv[1], "--promises") == 0;
  char const* const wanted = argc > 1 && !subtle_only && !promises_only ? argv[1] : nullptr;
  if (!subtle_only && !promises_only)
    write(all_faults(), run_fixed_classes, wanted);
  if (!promises_only)
    write(all_subtle_faults(), run_generated_classes, wanted);
  if (!subtle_only)
    write(promise_faults(), run_all_classes, wanted);
}
