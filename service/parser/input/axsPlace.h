#pragma once

#include <cstdint>

/// A place in a document: line and column, both counted from 1; columns in units of UTF-16.
struct axsPlace
{
  std::uint64_t line = 1;
  std::uint64_t column = 1;

  bool operator==(axsPlace const& other) const noexcept { return line == other.line && column == other.column; }
  bool operator!=(axsPlace const& other) const noexcept { return !(*this == other); }
};
