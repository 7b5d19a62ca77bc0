#pragma once

#include <apString.h>
#include <axmParseError.h>

/// Why reading stopped, thrown from wherever that is found up to the factory, which turns it into the caller's record.
struct axsReadError
{
  apString message;
  apString url;
  // Counted from 1, -1 where not known.
  int line = -1;
  int column = -1;

  axmParseError record() const;
};
