#pragma once

#include <cstdint>

/// Where a component stands in the schema documents of its set: the number of the file there, the line and the column,
/// counted from 1; 0 where there is none, as of built-in components.
struct axsSchemaPlace
{
  std::uint32_t file = 0;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
};
