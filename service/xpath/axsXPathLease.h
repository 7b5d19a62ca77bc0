#pragma once

#include "axsXPathSelector.h"

#include <utility>
#include <vector>

/// Borrows a vector of nodes from a selector as long as it lives.
class axsXPathLease
{
public:
  explicit axsXPathLease(axsXPathSelector& selector) : lender(selector), lent(selector.borrow()) {}
  axsXPathLease(axsXPathLease const&) = delete;
  axsXPathLease& operator=(axsXPathLease const&) = delete;
  ~axsXPathLease() { lender.give_back(std::move(lent)); }

  std::vector<axsXPathNode>& nodes() noexcept { return lent; }

private:
  axsXPathSelector& lender;
  std::vector<axsXPathNode> lent;
};
