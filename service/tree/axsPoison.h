#pragma once

#include <cstddef>

#if defined(__has_feature)
#  if __has_feature(address_sanitizer)
#    define AXS_ADDRESS_SANITIZER
#  endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(AXS_ADDRESS_SANITIZER)
#  include <sanitizer/asan_interface.h>
#else
#  define ASAN_POISON_MEMORY_REGION(address, size) static_cast<void>(0)
#  define ASAN_UNPOISON_MEMORY_REGION(address, size) static_cast<void>(0)
#endif

/// Tells the address sanitizer, where there is one, which memory of ours nobody may use.
namespace axsPoison
{
inline void add([[maybe_unused]] void const volatile* block, [[maybe_unused]] std::size_t size) noexcept
{
  ASAN_POISON_MEMORY_REGION(block, size);
}

inline void remove([[maybe_unused]] void const volatile* block, [[maybe_unused]] std::size_t size) noexcept
{
  ASAN_UNPOISON_MEMORY_REGION(block, size);
}
}
