#pragma once

#include "axmExport.h"

#include <utString.h>

/// What the cursors throw, by value, when a document is not as they need it.
///
/// Abstract; not one of the standard exceptions. The streaming reader catches it by reference and keeps the explanation.
/// The order of the virtual operations is a promise to programs built separately.
class AXM_API axmException
{
public:
  axmException();
  axmException(axmException const& other);
  axmException& operator=(axmException const& other);

  /// What went wrong, in one line with a line feed at its end. Throws std::bad_alloc when memory runs out.
  virtual utString explanation() const = 0;

  virtual ~axmException();
};
