#pragma once

#include "apExport.h"
#include "apString.h"

/// Reads a decimal integer at the beginning of a text.
///
/// Accepted: white space (as the C library's iswspace has it), then an optional sign, then one or more ASCII digits. The
/// number must fit an `int`. Safe from several threads at once.
class AP_API apStringLocaleIntParser
{
public:
  struct Result
  {
    /// Whether a number was read; if not, position and value are 0.
    bool success;
    /// Where parsing stopped, counted in characters from 0: after the last digit.
    int position;
    int value;
  };

  static Result parse(apString const& text) noexcept;
};
