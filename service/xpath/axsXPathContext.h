#pragma once

#include "axsXPathNode.h"

#include <cstddef>

/// What an expression is evaluated for (XPath 1.0, section 1). A plain value.
struct axsXPathContext
{
  axsXPathNode node;
  std::size_t position = 1;
  std::size_t size = 1;
};
