#pragma once

#include <cstdint>

// Finds the characters on which the structure of a document turns, `<` and `>`, and the NUL at which it ends, many at a
// time. Not installed.
namespace axmStructuralScan
{
inline constexpr int masks = 16;
inline constexpr int mask_bytes = 64;
inline constexpr int bytes = masks * mask_bytes;

// Sets one bit in `found`, which has room for `masks`, for each of the `bytes` bytes from `from` on, all of which are read.
void find(char const* from, std::uint64_t* found);

// The ways of find(), from the one that every machine has to the fastest.
using Way = void (*)(char const* from, std::uint64_t* found);
void find_by_words(char const* from, std::uint64_t* found);
void find_by_blocks(char const* from, std::uint64_t* found);
Way fastest();
}
