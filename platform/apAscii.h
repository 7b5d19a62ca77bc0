#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Text between its narrow and its wide form as long as it is ASCII, as most of it is: in blocks that compilers turn into
/// vector instructions, the last one of which overlaps the one before it, so that no remainder is left to single steps.
/// Safe from several threads at once.
class apAscii
{
public:
  /// Whether the `length` bytes at `text` are all ASCII.
  static bool is_ascii(char const* text, std::size_t length) noexcept
  {
    if (length < sizeof(std::uint64_t))
    {
      unsigned char all = 0;
      for (std::size_t i = 0; i < length; ++i)
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(text[i]));
      return all < 0x80;
    }
    std::uint64_t all = word(text + length - sizeof(std::uint64_t));
    std::size_t at = 0;
    for (; at + 4 * sizeof all <= length; at += 4 * sizeof all)
      all |= word(text + at) | word(text + at + 8) | word(text + at + 16) | word(text + at + 24);
    for (; at + sizeof all <= length; at += sizeof all)
      all |= word(text + at);
    return (all & 0x8080808080808080u) == 0;
  }

  /// Puts the `length` ASCII characters at `text` to `wide`, which they do not overlap.
  static void widen(char const* text, std::size_t length, wchar_t* wide) noexcept
  {
    if (length < block)
    {
      for (std::size_t i = 0; i < length; ++i)
        wide[i] = static_cast<wchar_t>(text[i]);
      return;
    }
    for (std::size_t at = 0; at + block <= length; at += block)
      widen_block(text + at, wide + at);
    widen_block(text + length - block, wide + length - block);
  }

  /// Whether the `length` characters at `text` are all ASCII.
  static bool is_ascii(wchar_t const* text, std::size_t length) noexcept
  {
    unsigned long all = 0;
    for (std::size_t i = 0; i < length; ++i)
      all |= static_cast<unsigned long>(text[i]);
    return all < 0x80;
  }

  /// Puts the `length` ASCII characters at `text` to `narrow`, which they do not overlap.
  static void narrow(wchar_t const* __restrict text, std::size_t length, char* __restrict narrow) noexcept
  {
    for (std::size_t i = 0; i < length; ++i)
      narrow[i] = static_cast<char>(text[i]);
  }

private:
  static constexpr std::size_t block = 8;

  static std::uint64_t word(char const* text) noexcept
  {
    std::uint64_t bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return bytes;
  }

  static void widen_block(char const* __restrict text, wchar_t* __restrict wide) noexcept
  {
    for (std::size_t i = 0; i < block; ++i)
      wide[i] = static_cast<wchar_t>(static_cast<unsigned char>(text[i]));
  }
};
