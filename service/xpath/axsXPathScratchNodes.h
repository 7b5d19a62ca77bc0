#pragma once

#include "axsXPathPathEvaluator.h"

#include <utility>
#include <vector>

/// Borrows a vector of nodes from a selector as long as it lives.
class axsXPathScratchNodes
{
public:
  explicit axsXPathScratchNodes(axsXPathPathEvaluator& selector) : lender(selector), lent(selector.borrow()) {}
  axsXPathScratchNodes(axsXPathScratchNodes const&) = delete;
  axsXPathScratchNodes& operator=(axsXPathScratchNodes const&) = delete;
  ~axsXPathScratchNodes() { lender.give_back(std::move(lent)); }

  std::vector<axsXPathNode>& nodes() noexcept { return lent; }

private:
  axsXPathPathEvaluator& lender;
  std::vector<axsXPathNode> lent;
};
