#pragma once

#include "utExport.h"

/// Is told of every assertion that fails; see utAssert.h.
///
/// Interface. Not owned by what it is set with. It is called on the thread whose assertion failed, one call at a time.
class UT_API utAssertListener
{
public:
  utAssertListener();
  utAssertListener(utAssertListener const&) = delete;
  utAssertListener& operator=(utAssertListener const&) = delete;
  virtual ~utAssertListener();

  /// `expression`, in the words of the code at `line` of `file`, does not hold. The texts live as long as the call.
  virtual void assertion_failed(char const* expression, char const* file, int line) = 0;
};
