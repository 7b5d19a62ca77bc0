#include "MemoryStream.h"

#include <algorithm>
#include <cstring>

std::size_t MemoryStream::read(char* to, std::size_t size)
{
  std::size_t const count = std::min(size, left.size());
  std::memcpy(to, left.data(), count);
  left.remove_prefix(count);
  return count;
}
