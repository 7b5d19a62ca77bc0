// The engine against a suite of schemas: schema_suite FOLDER [KNOWN]
//
// FOLDER holds the suite (SchemaSuite.h says in which form). Each test that does not come out as the suite says gets a line
// on standard output, with the reason that the list KNOWN has for it (KnownExceptions.h). Exit code 0 unless a test crashed
// or overran, has no reason there, or has one and agrees (1), or nothing could be run (2).

#include "SchemaSuite.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <thread>

namespace
{
void print(char const* kind, SchemaTally const& tally)
{
  std::cout << kind << ' ' << tally.agree << " of " << tally.tests << " agree";
  if (tally.tests > 0)
    std::cout << " (" << 100.0 * tally.agree / tally.tests << " %)";
  std::cout << '\n';
}

int run(std::string const& folder, KnownExceptions const& known)
{
  auto const tests = read_schema_suite(folder);
  GuardedLimits limits;
  limits.processes = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
// The address sanitizer keeps whole terabytes of address space.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  limits.bytes = std::size_t(2) << 30;
#endif
  auto const result = run_schema_suite(tests, known, limits, std::cout, std::cerr);

  std::cout << std::fixed << std::setprecision(2);
  print("schemas:  ", result.schemas);
  print("instances:", result.instances);
  std::cout << "without a known reason: " << result.unexplained << '\n';
  for (std::string const& name : result.outdated)
    std::cout << "has a reason and agrees by now: " << name << '\n';
  std::cout << "crashed: " << result.crashed << '\n';
  std::cout << "over " << limits.seconds << " s: " << result.overran << '\n';
  std::cout << "slowest: " << result.slowest_seconds << " s, " << result.slowest << '\n';
  std::cout << "peak memory of one process: " << (result.peak_bytes >> 20) << " MiB\n";
  return result.crashed + result.overran + result.unexplained == 0 && result.outdated.empty() ? 0 : 1;
}
}

int main(int argc, char** argv)
{
  if (argc != 2 && argc != 3)
  {
    std::cerr << "usage: schema_suite FOLDER [KNOWN]\n";
    return 2;
  }
  try
  {
    return run(argv[1], argc == 3 ? read_known_exceptions(argv[2]) : KnownExceptions());
  }
  catch (std::exception const& error)
  {
    std::cerr << "schema_suite: " << error.what() << '\n';
    return 2;
  }
}
