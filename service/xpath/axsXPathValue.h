#pragma once

#include "axsXPathNode.h"
#include "axsXPathType.h"

#include <string>
#include <vector>

/// What an expression gives: a node-set in document order, or one of the other three. A plain value.
struct axsXPathValue
{
  axsXPathType type = axsXPathType::node_set;
  std::vector<axsXPathNode> nodes;
  bool boolean = false;
  double number = 0;
  std::string string;
};
