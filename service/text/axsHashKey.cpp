#include "axsHashKey.h"

#include <apEntropy.h>

axsHashKey::axsHashKey(std::uint64_t seed_0, std::uint64_t seed_1) noexcept : long_texts(seed_0, seed_1)
{
  // The seeds are spread by a function of the same kind with rounds to spare, so that no use of the key tells of another.
  axsSipHash<2, 4> const derive(seed_0, seed_1);
  char number = 0;
  for (std::uint64_t& multiplier : short_texts)
  {
    multiplier = derive({&number, 1});
    ++number;
  }
}

axsHashKey const& axsHashKey::of_process() noexcept
{
  static axsHashKey const key(apEntropy::draw(), apEntropy::draw());
  return key;
}
