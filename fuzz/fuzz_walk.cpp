// The exact readers over any bytes: what a walk and rows that chance chooses have must be what the engine's tree has, and
// what the engine refuses the readers have to refuse.

#include "TreeModel.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::string const document(reinterpret_cast<char const*>(data), size);
  // The same bytes choose the same walk.
  unsigned seed = 2166136261u;
  for (char const c : document)
    seed = (seed ^ static_cast<unsigned char>(c)) * 16777619u;
  std::size_t const piece = seed % 4 == 0 ? 1 + seed / 4 % 64 : std::size_t{1} << 20;
  std::string const difference = reader_difference(document, seed, piece);
  if (difference.empty())
    return 0;
  std::cerr << difference << '\n';
  std::abort();
}
