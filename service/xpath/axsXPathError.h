#pragma once

#include <string>

/// Why an XPath expression cannot be used, and where. A plain value.
struct axsXPathError
{
  /// What is wrong, in UTF-8; empty as long as nothing is.
  std::string message;

  /// The place in the expression, counted in characters (Unicode code points) from 1; the length of the expression plus
  /// one where something is missing at its end; 0 as long as nothing is wrong.
  int position = 0;
};
