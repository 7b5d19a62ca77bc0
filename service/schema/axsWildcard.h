#pragma once

#include "axsSchemaPlace.h"

#include <string>
#include <vector>

/// A wildcard (Part 1, 3.10.1), of elements or attributes.
struct axsWildcard
{
  enum class Namespaces
  {
    any,
    not_one, // any but that of `spaces`, and not none
    one_of   // those of `spaces`
  };

  enum class Process
  {
    strict,
    lax,
    skip
  };

  Namespaces kind = Namespaces::any;
  /// The empty one stands for "absent": names without a namespace. Sorted, without doubles.
  std::vector<std::string> spaces;
  Process process = Process::strict;
  axsSchemaPlace place;
};
