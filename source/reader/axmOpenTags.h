#pragma once

#include "axmTagName.h"

#include <coDynArr.h>

// The tags that are open at some place in a document, the innermost last: what a scan over nested elements keeps instead
// of calling itself. The first levels, which are all that most documents have, need no memory of their own.
// Not installed.
class axmOpenTags
{
public:
  bool empty() const noexcept { return depth == 0; }

  axmTagName last() const noexcept
  {
    return depth <= near_levels ? nearest[depth - 1] : further[depth - near_levels - 1];
  }

  // Throws std::bad_alloc when memory runs out.
  void push(axmTagName name);

  void pop() noexcept
  {
    --depth;
    if (depth >= near_levels)
      further.shrink(depth - near_levels, 0);
  }

private:
  static constexpr int near_levels = 32;

  axmTagName nearest[near_levels];
  coDynArr<axmTagName> further;
  int depth = 0;
};
