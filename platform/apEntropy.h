#pragma once

#include "apExport.h"

#include <cstdint>

/// Numbers that nobody can foresee. Safe from several threads at once.
class AP_API apEntropy
{
public:
  /// 64 random bits of the system; where it has none, the clock takes their place. Throws nothing.
  static std::uint64_t draw() noexcept;
};
