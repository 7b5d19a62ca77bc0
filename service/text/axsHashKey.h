#pragma once

#include "axsSipHash.h"

#include <cstdint>

/// What an axsTextHash depends on beside the text: as good as random to whoever knows neither seed.
struct axsHashKey
{
  axsHashKey(std::uint64_t seed_0, std::uint64_t seed_1) noexcept;

  /// The key that this process has drawn, the same at every call. Throws nothing: where the system has nothing random, the
  /// clock takes its place.
  static axsHashKey const& of_process() noexcept;

  axsSipHash<1, 3> long_texts;

  /// One for each 32 bits of a short text, one for its length and one that is added.
  std::uint64_t short_texts[6];
};
