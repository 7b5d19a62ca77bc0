// Takes the place of the C library's allocation functions in this program and the libraries it uses, to count the calls.

#include "allocations.h"

#include <cstddef>

extern "C"
{
  void* __libc_malloc(std::size_t size);
  void* __libc_calloc(std::size_t count, std::size_t size);
  void* __libc_realloc(void* block, std::size_t size);
}

namespace
{
long count = 0;
}

long allocations_so_far()
{
  return count;
}

extern "C" void* malloc(std::size_t size)
{
  ++count;
  return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t number, std::size_t size)
{
  ++count;
  return __libc_calloc(number, size);
}

extern "C" void* realloc(void* block, std::size_t size)
{
  ++count;
  return __libc_realloc(block, size);
}
