#include "axsMemorySource.h"

std::size_t axsMemorySource::read(char* to, std::size_t size)
{
  std::size_t const count = bytes.copy(to, size, at);
  at += count;
  return count;
}
