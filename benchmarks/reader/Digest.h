#pragma once

#include <utXmlCharacter.h>

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

// A checksum over every byte of every value, field by field in the order of the document. Whoever leaves a value out, has
// one too many or one different byte gets another one. It costs next to nothing, for it is part of what is timed.
class Digest
{
public:
  explicit Digest(int fields) : chains(static_cast<std::size_t>(fields), 0x9E3779B97F4A7C15u) {}

  void add(int field, std::string_view value)
  {
    std::uint64_t& chain = chains[static_cast<std::size_t>(field)];
    chain = mixed(chain, value);
  }

  // A text without the white space before it, which the reader passes when it enters an element.
  void add_text(int field, std::string_view value)
  {
    while (!value.empty() && utXmlCharacter::is_space(value.front()))
      value.remove_prefix(1);
    add(field, value);
  }

  bool operator==(Digest const& other) const { return chains == other.chains; }
  bool operator!=(Digest const& other) const { return !(*this == other); }

private:
  template <class Word>
  static std::uint64_t word(char const* at)
  {
    Word value;
    std::memcpy(&value, at, sizeof value);
    return value;
  }

  // One step can be undone, whatever `value` is, so that a difference once there does not go away by itself.
  static std::uint64_t step(std::uint64_t hash, std::uint64_t value)
  {
    hash = (hash ^ value) * 0xD6E8FEB86659FD93u;
    return hash << 32 | hash >> 32;
  }

  static std::uint64_t mixed(std::uint64_t hash, std::string_view value)
  {
    char const* at = value.data();
    std::size_t left = value.size();
    hash = step(hash, left);
    if (left >= 64)
    {
      // Four chains side by side, as long as there is much to read.
      std::uint64_t lanes[4] = {hash, hash + 1, hash + 2, hash + 3};
      for (; left >= 32; at += 32, left -= 32)
        for (int i = 0; i < 4; ++i)
          lanes[i] = step(lanes[i], word<std::uint64_t>(at + 8 * i));
      hash = step(step(step(lanes[0], lanes[1]), lanes[2]), lanes[3]);
    }
    for (; left >= 8; at += 8, left -= 8)
      hash = step(hash, word<std::uint64_t>(at));
    if (left >= 4)
      return step(hash, word<std::uint32_t>(at) << 32 | word<std::uint32_t>(at + left - 4));
    if (left > 0)
      return step(hash,
        word<std::uint8_t>(at) | word<std::uint8_t>(at + left / 2) << 8 | word<std::uint8_t>(at + left - 1) << 16);
    return hash;
  }

  std::vector<std::uint64_t> chains;
};
