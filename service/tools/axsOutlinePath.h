#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The elements that have one name and are in elements of the same names, up to the root. A plain value; texts are UTF-8.
struct axsOutlinePath
{
  struct Attribute
  {
    std::string name;
    /// How many of the elements have it.
    std::uint64_t count = 0;
  };

  /// The names, as they are written, with a slash between them, as axsRecordReader takes it.
  std::string path;

  /// How many names those are.
  std::size_t depth = 0;

  std::uint64_t count = 0;

  /// How many of the elements have text in them, white space not counted.
  std::uint64_t texts = 0;

  /// In the order in which they came.
  std::vector<Attribute> attributes;
};
