#pragma once

#include "axsPlace.h"

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
  // Whether it may be that bytes are no characters; then the place is somewhere before them.
  bool is_about_encoding = false;

  /// With a place, as far as its numbers fit.
  static axsReadError at(apString const& message, apString const& url, axsPlace place);

  axmParseError record() const;
};
