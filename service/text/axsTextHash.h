#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// A hash that nobody can foresee, for texts that come from documents. Who could foresee it could write a document all of
/// whose names fall into one place of a table: then finding one takes a time that grows with their number.
class axsTextHash
{
public:
  /// With a key that every process draws anew.
  axsTextHash() : key(key_of_process()) {}

  explicit axsTextHash(std::uint64_t given) : key(given) {}

  // Not noexcept: a hash that is, the standard library takes for a fast one, and computes it again rather than keep it.
  std::size_t operator()(std::string_view text) const
  {
    char const* at = text.data();
    std::size_t const length = text.size();
    std::uint64_t hash = length;
    if (length >= 8)
    {
      // The last word overlaps the one before it.
      char const* const last = at + length - 8;
      for (; at < last; at += 8)
        hash = mixed(hash, word_at<std::uint64_t>(at));
      return static_cast<std::size_t>(mixed(hash, word_at<std::uint64_t>(last)));
    }
    if (length >= 4)
      return static_cast<std::size_t>(
        mixed(hash, word_at<std::uint32_t>(at) << 32 | word_at<std::uint32_t>(at + length - 4)));
    for (char const c : text)
      hash = hash << 8 | static_cast<unsigned char>(c);
    return static_cast<std::size_t>(mixed(0, hash));
  }

private:
  static std::uint64_t key_of_process();

  template <class Word>
  static std::uint64_t word_at(char const* at)
  {
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
  }

  // Both halves of the product: the upper one depends on every bit, so that no change of a value has the same effect under
  // all keys.
  std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) const
  {
    std::uint64_t const mingled = hash ^ value;
#if defined(__SIZEOF_INT128__)
    __extension__ using Product = unsigned __int128;
    Product const product = static_cast<Product>(mingled) * key;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
#else
    std::uint64_t const low = (mingled & 0xFFFFFFFFu) * (key | 1);
    std::uint64_t const high = (mingled >> 32) * (key >> 32 | 1);
    return low ^ (low >> 32) ^ (high << 32 | high >> 32);
#endif
  }

  std::uint64_t key;
};
