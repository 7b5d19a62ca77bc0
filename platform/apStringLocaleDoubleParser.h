#pragma once

#include "apExport.h"
#include "apString.h"

/// Reads a floating-point number at the beginning of a text, in the form of the current C locale.
///
/// Accepted is what the C library's strtod accepts there: white space, an optional sign, then decimal digits with the
/// locale's decimal point and an optional exponent, a hexadecimal number after "0x", "inf", "infinity" or "nan" in any
/// case. The nearest double is the value; a number too large for one is an infinity, one too small is 0 or the nearest
/// subnormal number, and both count as read. Safe from several threads at once, as long as none changes the locale.
class AP_API apStringLocaleDoubleParser
{
public:
  struct Result
  {
    /// Whether a number was read; if not, position and value are 0.
    bool success;
    /// Where parsing stopped, counted in characters from 0.
    int position;
    double value;
  };

  static Result parse(apString const& text) noexcept;
};
