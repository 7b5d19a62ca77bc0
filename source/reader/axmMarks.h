#pragma once

#include <cstdint>

// Finds the characters on which markup turns, `<` and `>`, and the NUL at which a document ends, many at a time.
// Not installed.
class axmMarks
{
public:
  // The ways, from the one that every processor has to the fastest.
  enum Way
  {
    words,
    sse2,
    avx2
  };

  static constexpr int blocks = 16;
  static constexpr int block_bytes = 64;
  static constexpr int bytes = blocks * block_bytes;

  // One bit for each of `bytes` bytes from `from` on, all of which are read, 64 of them in a mask.
  static void find(char const* from, std::uint64_t* masks);

  // Whether this processor and build have the way.
  static bool has(Way way);

  // The way that find() goes: the fastest there is, unless another one was chosen, which tests and benchmarks do. The
  // choice is for the whole process.
  static Way chosen();
  static void choose(Way way);
};
