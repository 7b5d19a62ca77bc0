#pragma once

#include "axsXPathPathEvaluator.h"

#include <utility>
#include <vector>

/// An empty vector of nodes for the time of a scope, borrowed so that evaluations of predicates need not allocate one each.
class axsXPathScratchNodes
{
public:
  explicit axsXPathScratchNodes(axsXPathPathEvaluator& paths) : lender(paths), lent(paths.borrow()) {}
  axsXPathScratchNodes(axsXPathScratchNodes const&) = delete;
  axsXPathScratchNodes& operator=(axsXPathScratchNodes const&) = delete;
  ~axsXPathScratchNodes() { lender.give_back(std::move(lent)); }

  std::vector<axsXPathNode>& nodes() noexcept { return lent; }

private:
  axsXPathPathEvaluator& lender;
  std::vector<axsXPathNode> lent;
};
