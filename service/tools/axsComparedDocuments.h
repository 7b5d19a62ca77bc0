#pragma once

#include "axsCompareOptions.h"
#include "axsFlatTree.h"
#include "axsFlatTreeNames.h"

/// The documents that are to be compared; see axsComparison. Plain data.
struct axsComparedDocuments
{
  axsCompareOptions options;
  axsFlatTreeNames names;
  axsFlatTree first;
  axsFlatTree second;
};
