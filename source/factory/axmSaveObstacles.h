#pragma once

#include "axmDocument.h"
#include "axmExport.h"

#include <apString.h>

/// What the factory of an engine can tell beyond axmDocumentFactory: why a document is not saved. A factory that can derives
/// from this, too, and programs ask it by a cast:
///
///     auto const obstacles = std::dynamic_pointer_cast<axmSaveObstacles>(factory);
///
/// Interface. Threads: as the factory. The order of the virtual operations is a promise to engines built separately.
class AXM_API axmSaveObstacles
{
public:
  axmSaveObstacles();
  axmSaveObstacles(axmSaveObstacles const&) = delete;
  axmSaveObstacles& operator=(axmSaveObstacles const&) = delete;
  virtual ~axmSaveObstacles();

  /// What keeps saveDocument() from saving `document`, as a sentence without its end; empty where nothing does but perhaps
  /// the file. May cost as much as a save. Throws std::bad_alloc when memory runs out.
  virtual apString obstacle(axmDocument const& document) const = 0;
};
