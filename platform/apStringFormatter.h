#pragma once

#include "apExport.h"
#include "apString.h"

/// Builds a wide text from a pattern, the same on every system and under every locale.
///
/// Safe from several threads at once.
class AP_API apStringFormatter
{
public:
  /// The text of `format` with its directives replaced by the arguments, as in the C library's printf, under these
  /// rules: the decimal point is always '.'; %s takes wide text (`wchar_t const*`) and %hs narrow text in UTF-8
  /// (`char const*`, closed by a NUL also where there is a precision), null counting as "(null)"; %c takes a wide
  /// character; widths and precisions of texts are counted in `wchar_t`. Known are the directives
  /// d i u x X o c s p e E f F g G %, the flags - + space # 0, width and precision as numbers or *, and of the lengths
  /// hh h l ll j z t those that make sense. %p is written as each system does. A directive that is not known stands in
  /// the result as it does in the pattern, and so does everything after it, for its arguments cannot be told.
  /// Throws std::bad_alloc when memory runs out.
  static apString format(wchar_t const* format, ...);
};
