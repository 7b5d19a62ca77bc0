#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// Hands the inputs that are kept for the target of that name to it, which ends the program where something is wrong. How many
/// there are.
inline int replay(int (*target)(std::uint8_t const*, std::size_t), char const* name)
{
  int count = 0;
  for (std::filesystem::path const& folder :
    {std::filesystem::path(FUZZ_SEEDS) / "all", std::filesystem::path(FUZZ_SEEDS) / name})
  {
    if (!std::filesystem::exists(folder))
      continue;
    for (auto const& entry : std::filesystem::directory_iterator(folder))
    {
      std::ifstream stream(entry.path(), std::ios::binary);
      std::string const input{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
      SCOPED_TRACE(entry.path().string());
      EXPECT_EQ(target(reinterpret_cast<std::uint8_t const*>(input.data()), input.size()), 0);
      ++count;
    }
  }
  return count;
}
