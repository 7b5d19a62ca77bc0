#pragma once

#include <cstddef>
#include <cstdint>

/// Moves over UTF-8 many bytes at a time, wherever in it characters begin. What is wrong and where exactly is for
/// utUtf8::decode() to say.
namespace axsUtf8Scan
{
/// What is looked at together.
inline constexpr std::ptrdiff_t chunk = 64;

/// What was among the characters that were passed, one text in as many steps as it takes.
struct Seen
{
  /// Whether U+FFFE or U+FFFF were, which XML excludes (2.2, [2] Char).
  bool has_excluded = false;

  /// How many line ends, carriage return and line feed in that order counted as one (XML 1.0, 2.11).
  std::uint64_t line_ends = 0;

  /// Whether the last character was a carriage return.
  bool ends_with_return = false;

  /// One character more.
  void add(char32_t character) noexcept;
};

/// From `at`, where a character begins, to the end of whole characters, all of them well-formed and no zero byte among them
/// (The Unicode Standard, table 3-7). Stops in front of what does not fill a chunk, and of a chunk with something wrong.
/// Adds to `seen` what is among them.
char const* skip(char const* at, char const* end, Seen& seen) noexcept;

/// The ways of skip(), from the one that every machine has to the fastest of this one.
using Way = char const* (*)(char const* at, char const* end, Seen& seen) noexcept;
char const* skip_by_words(char const* at, char const* end, Seen& seen) noexcept;
char const* skip_by_blocks(char const* at, char const* end, Seen& seen) noexcept;
Way fastest() noexcept;
}
