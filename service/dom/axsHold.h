#pragma once

#include "axsTree.h"

/// Holds a node for as long as it lives, for a list or map. The nodes of a shared document need none to hold them.
class axsHold
{
public:
  explicit axsHold(axsNode& node) noexcept : held(node)
  {
    if (!node.tree().is_shared())
      node.acquire();
  }
  axsHold(axsHold const&) = delete;
  axsHold& operator=(axsHold const&) = delete;
  ~axsHold()
  {
    if (!held.tree().is_shared())
      held.release();
  }

private:
  axsNode& held;
};
