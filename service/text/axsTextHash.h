#pragma once

#include "axsHashKey.h"

#include <apBits.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// A hash that nobody can foresee, for texts that come from documents. Who could foresee it could write a document all of
/// whose names fall into one place of a table: then finding one takes a time that grows with their number.
///
/// Two texts of up to 16 bytes have the same value with a chance of 1 in 2^32 over the keys, whatever the two are: they are
/// hashed by a strongly universal family (Dietzfelbinger, "Universal hashing and k-wise independent random variables via
/// integer arithmetic without primes", 1996). Longer ones are hashed by SipHash-1-3. Values are of 32 bits, which is more
/// than tables of names have places. O(n). Safe from several threads at once.
class axsTextHash
{
public:
  /// With the key of the process.
  axsTextHash() noexcept : key(&axsHashKey::of_process()) {}

  /// With `given`, which must live longer.
  explicit axsTextHash(axsHashKey const& given) noexcept : key(&given) {}

  // Not noexcept: a hash that is, the standard library takes for a fast one, and computes it again rather than keep it.
  std::size_t operator()(std::string_view text) const
  {
    char const* const at = text.data();
    std::size_t const length = text.size();
    if (length > 16)
      return static_cast<std::uint32_t>(key->long_texts(text));
    // The last word overlaps the one before it. Of texts of one length, no two have the same words.
    if (length >= 8)
      return mixed(length, apBits::load(at), apBits::load(at + length - 8));
    if (length >= 4)
      return mixed(length, apBits::load_half(at) | std::uint64_t(apBits::load_half(at + length - 4)) << 32, 0);
    std::uint64_t word = 0;
    for (char const c : text)
      word = word << 8 | static_cast<unsigned char>(c);
    return mixed(length, word, 0);
  }

private:
  // One to one, so that it keeps the chance of equal values; without it, texts that are counted on differ by equal steps,
  // and under an unlucky key too many fall into few places.
  static std::uint32_t spread(std::uint32_t value)
  {
    value ^= value >> 16;
    value *= 0x7FEB352Du;
    return value ^ value >> 15;
  }

  std::size_t mixed(std::size_t length, std::uint64_t one, std::uint64_t other) const
  {
    std::uint64_t const* const random = key->short_texts;
    std::uint64_t const sum = random[0] + random[1] * length + random[2] * (one & 0xFFFFFFFFu) +
                              random[3] * (one >> 32) + random[4] * (other & 0xFFFFFFFFu) + random[5] * (other >> 32);
    return spread(static_cast<std::uint32_t>(sum >> 32));
  }

  axsHashKey const* key;
};
