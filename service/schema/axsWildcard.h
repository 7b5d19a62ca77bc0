#pragma once

#include "axsNamespaceList.h"
#include "axsSchemaPlace.h"

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
  axsNamespaceList spaces;
  Process process = Process::strict;
  axsSchemaPlace place;
};
