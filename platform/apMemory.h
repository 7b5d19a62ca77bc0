#pragma once

#include <apExport.h>

#include <cstddef>

/// Hints to the system about memory. Safe from several threads at once.
class AP_API apMemory
{
public:
  /// Says that all `size` bytes from `block` on will be written and read before long. Where they are many, the system may
  /// then hand them out in large pages, which is several times as fast as in small ones. Changes nothing else, and does
  /// nothing where there is no such thing.
  static void will_fill(void* block, std::size_t size) noexcept;
};
