#pragma once

#include "axsExport.h"
#include <apString.h>
#include <axmDocument.h>

/// What axmDocumentFactory::saveDocument() does not tell.
class AXS_API axsSaving
{
public:
  /// Why the engine does not save `document`: what in it XML cannot hold, or would be another one when the document is read
  /// again, as a sentence without its end. Empty where nothing keeps it from being saved but perhaps the file. Costs as much
  /// as a save. Throws std::bad_alloc when memory runs out. Threads: those of the document.
  static apString obstacle(axmDocument const& document);
};
