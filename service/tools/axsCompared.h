#pragma once

#include "axsChildAlignment.h"
#include "axsComparison.h"
#include "axsFlatTree.h"

#include <cstddef>
#include <vector>

/// One comparison of two documents; see axsComparison.
class axsCompared
{
public:
  /// Both must live longer.
  axsCompared(axsFlatTree const& before, axsFlatTree const& after) : first(before), second(after) {}

  /// Whether they say the same.
  bool run(axsComparison::Take const& take);

private:
  using Node = axsFlatTree::Node;

  static constexpr std::size_t none = axsChildAlignment::none;

  // What is still to be done with a node of each, of which one may be none.
  struct Step
  {
    std::size_t before;
    std::size_t after;
  };

  bool compare(Step step, axsComparison::Take const& take);
  bool compare_attributes(Step step, axsComparison::Take const& take) const;
  void compare_children(Step step);
  axsDifference difference(axsDifference::Kind kind, Step step) const;

  axsFlatTree const& first;
  axsFlatTree const& second;
  std::vector<Step> steps;
  bool is_same = true;
};
