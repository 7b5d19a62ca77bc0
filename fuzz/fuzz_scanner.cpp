// The two parsers of the engine over any bytes: what the scanner of ordinary documents takes, the other one takes, too,
// and makes the same tree of it.

#include "BothRoads.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  BothRoads const roads({reinterpret_cast<char const*>(data), size});
  if (roads.difference().empty())
    return 0;
  std::fprintf(stderr, "%s\n", roads.difference().c_str());
  std::abort();
}
