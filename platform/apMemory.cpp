#include "apMemory.h"

#if defined(__linux__)
#  include <sys/mman.h>
#  include <unistd.h>

#  include <cstdint>
#endif

void apMemory::will_fill(void* block, std::size_t size) noexcept
{
#if defined(__linux__)
  // A large page has 2 MiB on most machines: below some of them it is better to have the small ones all at once.
  std::size_t const worthwhile = 4u << 20;
#  if defined(MADV_POPULATE_WRITE)
  int const populate = MADV_POPULATE_WRITE;
#  else
  int const populate = 23; // that of Linux 5.14; others refuse it
#  endif
  auto const page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  // The pages in which the block begins and ends belong to it in part, and it does no harm to have those early.
  auto const begin = reinterpret_cast<std::uintptr_t>(block) & ~(page - 1);
  auto const end = (reinterpret_cast<std::uintptr_t>(block) + size + page - 1) & ~(page - 1);
  madvise(reinterpret_cast<void*>(begin), end - begin, size >= worthwhile ? MADV_HUGEPAGE : populate);
#else
  static_cast<void>(block);
  static_cast<void>(size);
#endif
}
