#include <apMemory.h>

#if defined(__linux__)
#  include <sys/mman.h>
#  include <unistd.h>

#  include <cstdint>
#endif

void apMemory::will_fill(void* block, std::size_t size) noexcept
{
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  // A large page has 2 MiB on most machines: below some of them there is nothing to win.
  std::size_t const worthwhile = 4u << 20;
  if (size < worthwhile)
    return;
  auto const page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  auto const begin = (reinterpret_cast<std::uintptr_t>(block) + page - 1) & ~(page - 1);
  auto const end = (reinterpret_cast<std::uintptr_t>(block) + size) & ~(page - 1);
  madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
#else
  static_cast<void>(block);
  static_cast<void>(size);
#endif
}
