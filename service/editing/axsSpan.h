#pragma once

#include <cstddef>

/// A range of a text, from the place of its first byte to the place after its last one.
struct axsSpan
{
  std::size_t begin = 0;
  std::size_t end = 0;

  std::size_t size() const noexcept { return end - begin; }
};
