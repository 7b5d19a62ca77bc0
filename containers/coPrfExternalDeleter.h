#pragma once

#include "coExport.h"

/// Marks the shared owners made for an object that is owned elsewhere: as the deleter of a shared pointer, it leaves the
/// object alone. Its type is what marks them, and is the same in every library.
class CO_API coPrfExternalDeleter
{
public:
  void operator()(void const*) const noexcept;
};
