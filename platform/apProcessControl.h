#pragma once

#include "apExport.h"

/// The running process. Safe from several threads at once.
class AP_API apProcessControl
{
public:
  /// The number by which the system knows this process.
  static int getpid() noexcept;
};
