#pragma once

#include <apBits.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The pseudorandom function SipHash-c-d of Aumasson and Bernstein ("SipHash: a fast short-input PRF", 2012), with
/// `compression_rounds` for each word and `final_rounds` at the end. Who does not know the key can tell its values from
/// random ones no better than by guessing. O(n). Safe from several threads at once.
template <int compression_rounds, int final_rounds>
class axsSipHash
{
public:
  axsSipHash(std::uint64_t key_0, std::uint64_t key_1) noexcept
    : v0(key_0 ^ 0x736F6D6570736575u),
      v1(key_1 ^ 0x646F72616E646F6Du),
      v2(key_0 ^ 0x6C7967656E657261u),
      v3(key_1 ^ 0x7465646279746573u)
  {
  }

  std::uint64_t operator()(std::string_view text) const noexcept
  {
    axsSipHash state = *this;
    char const* at = text.data();
    std::size_t rest = text.size();
    for (; rest >= 8; rest -= 8, at += 8)
      state.take(apBits::load(at));
    std::uint64_t last = static_cast<std::uint64_t>(text.size()) << 56;
    for (std::size_t i = 0; i < rest; ++i)
      last |= static_cast<std::uint64_t>(static_cast<unsigned char>(at[i])) << (8 * i);
    state.take(last);
    return state.finish();
  }

private:
  static std::uint64_t rotated(std::uint64_t word, int bits) noexcept { return word << bits | word >> (64 - bits); }

  void round() noexcept
  {
    v0 += v1;
    v2 += v3;
    v1 = rotated(v1, 13) ^ v0;
    v3 = rotated(v3, 16) ^ v2;
    v0 = rotated(v0, 32);
    v2 += v1;
    v0 += v3;
    v1 = rotated(v1, 17) ^ v2;
    v3 = rotated(v3, 21) ^ v0;
    v2 = rotated(v2, 32);
  }

  void take(std::uint64_t word) noexcept
  {
    v3 ^= word;
    for (int i = 0; i < compression_rounds; ++i)
      round();
    v0 ^= word;
  }

  std::uint64_t finish() noexcept
  {
    v2 ^= 0xFF;
    for (int i = 0; i < final_rounds; ++i)
      round();
    return v0 ^ v1 ^ v2 ^ v3;
  }

  std::uint64_t v0;
  std::uint64_t v1;
  std::uint64_t v2;
  std::uint64_t v3;
};
