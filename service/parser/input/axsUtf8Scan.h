#pragma once

#include <cstddef>

/// Moves over UTF-8 many bytes at a time, wherever in it characters begin. What is wrong and where exactly is for
/// utUtf8::decode() to say.
namespace axsUtf8Scan
{
/// What is looked at together.
inline constexpr std::ptrdiff_t chunk = 64;

/// From `at`, where a character begins, to the end of whole characters, all of them well-formed and no zero byte among them
/// (The Unicode Standard, table 3-7). Stops in front of what does not fill a chunk, and of a chunk with something wrong.
/// Sets `has_excluded` if U+FFFE or U+FFFF are among them, which XML excludes (2.2, [2] Char).
char const* skip(char const* at, char const* end, bool& has_excluded) noexcept;

/// The ways of skip(), from the one that every machine has to the fastest of this one.
using Way = char const* (*)(char const* at, char const* end, bool& has_excluded) noexcept;
char const* skip_by_words(char const* at, char const* end, bool& has_excluded) noexcept;
char const* skip_by_blocks(char const* at, char const* end, bool& has_excluded) noexcept;
Way fastest() noexcept;
}
