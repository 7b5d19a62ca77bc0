#pragma once

#include <apPath.h>
#include <apProcessControl.h>
#include <apStringFormatter.h>

#include <cstdio>
#include <gtest/gtest.h>
#include <string>

/// A path in the working folder that no other process uses.
inline apPath scratch_path(wchar_t const* name)
{
  return apPath(apStringFormatter::format(L"%d_%s", apProcessControl::getpid(), name));
}

inline void write_file(apPath const& path, std::string const& bytes)
{
  std::FILE* const file = path.file_open(apPath::write_mode());
  ASSERT_NE(file, nullptr) << path.path();
  EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
  EXPECT_EQ(std::fclose(file), 0);
}

/// The bytes of the file, or a text that says why there are none.
inline std::string read_file(apPath const& path)
{
  std::FILE* const file = path.file_open(apPath::read_mode());
  if (file == nullptr)
    return "cannot be opened";
  char bytes[1000];
  std::string result(bytes, std::fread(bytes, 1, sizeof bytes, file));
  std::fclose(file);
  return result;
}
