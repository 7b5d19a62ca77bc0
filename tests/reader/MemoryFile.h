#pragma once

#include <apITarnFile.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

// A file that is in memory, and does what it is told to do badly.
class MemoryFile : public apITarnFile
{
public:
  explicit MemoryFile(std::string given) : bytes(std::move(given)) {}

  bool seek(int offset, int origin) override
  {
    position = static_cast<int>(bytes.size()) + offset;
    return seeks && offset == 0 && origin == 2;
  }

  int tell() override { return told >= -1 ? told : position; }

  bool rewind() override
  {
    position = 0;
    return rewinds;
  }

  int read(void* buffer, int size, int count) override
  {
    ++reads;
    int const wanted = std::min(count - missing, static_cast<int>(bytes.size()));
    if (size != 1 || wanted < 0 || position != 0)
      return 0;
    std::memcpy(buffer, bytes.data(), static_cast<std::size_t>(wanted));
    return wanted;
  }

  std::string bytes;
  int position = 0;
  int reads = 0;
  bool seeks = true;
  bool rewinds = true;
  int told = -2;   // -2: the truth
  int missing = 0; // how many bytes fewer come than are asked for
};
