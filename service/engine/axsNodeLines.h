#pragma once

#include "axsExport.h"
#include <apByteArray.h>
#include <axmDocument.h>
#include <axmLoadOptions.h>
#include <axmNode.h>

#include <memory>
#include <vector>

/// Where the nodes of a document stand in the source that it was loaded from. A document does not remember that: its
/// source is read once more, side by side with the tree.
class AXS_API axsNodeLines
{
public:
  /// The line, counted from 1, in which each of `nodes` begins, of an attribute its name; 0 for one that is not part of
  /// `document`, and for the document itself. What comes out of an entity begins where the reference to it stands.
  ///
  /// `document` has to be as it was loaded, from `source` and with `options`; otherwise lines are wrong or 0. Linear in the
  /// size of the source. Throws std::bad_alloc when memory runs out.
  static std::vector<int> find(axmDocument const& document, apByteArray const& source, axmLoadOptions const& options,
    std::vector<std::shared_ptr<axmNode>> const& nodes);
};
