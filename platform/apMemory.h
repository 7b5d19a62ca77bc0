#pragma once

#include "apExport.h"

#include <cstddef>

/// Hints to the system about memory. Safe from several threads at once.
class AP_API apMemory
{
public:
  /// Says that all `size` bytes from `block` on, one at least, will be written before long. The system may then hand them
  /// out in large pages where they are many, and all at once where they are few, either of which is much faster than one
  /// small page after the other. Changes nothing else, and does nothing where there is no such thing.
  static void will_fill(void* block, std::size_t size) noexcept;
};
