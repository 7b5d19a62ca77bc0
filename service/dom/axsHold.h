#pragma once

#include "axsTree.h"

/// Holds a node for as long as it lives, for a list or map. The nodes of a shared document need none to hold them.
class axsHold
{
public:
  /// Of a node of `tree`.
  axsHold(axsNode& node, axsTree const& tree) noexcept : held(tree.is_shared() ? nullptr : &node)
  {
    if (held != nullptr)
      held->acquire();
  }
  axsHold(axsHold const&) = delete;
  axsHold& operator=(axsHold const&) = delete;
  ~axsHold()
  {
    if (held != nullptr)
      held->release();
  }

private:
  axsNode* const held;
};
