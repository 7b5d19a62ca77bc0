#pragma once

#include "axsExport.h"

#include <apByteArray.h>
#include <apPath.h>
#include <axmDocument.h>
#include <axmLoadOptions.h>
#include <axmNode.h>
#include <axmParseError.h>

#include <memory>
#include <string_view>
#include <vector>

/// What the engine loads beyond axmDocumentFactory::loadDocument().
///
/// Failures are results: nothing is handed out, and `error` says what went wrong and where; otherwise it stays as it was.
/// Threads: any, those of the document where there is one.
class AXS_API axsLoading
{
public:
  /// The document of a file, or that `data` holds, with all its white space: loaded so, saved and loaded so again, it has the
  /// same texts. All else is as for loadDocument(), whose options these are; memory that runs out is a failure, too.
  static std::shared_ptr<axmDocument> with_spaces(
    apPath const& path, axmLoadOptions const& options, axmParseError& error);
  static std::shared_ptr<axmDocument> with_spaces(
    apByteArray const& data, axmLoadOptions const& options, axmParseError& error);

  /// The nodes that `xml`, in UTF-8, is: what may stand in an element, as "one <b>two</b>". They belong to the document of
  /// `context`, which is an element or a document of this engine that is not shared (axsSharing), and are in no tree
  /// yet. Prefixes mean what they mean in `context`, as long as the nodes are put there. White space is kept. Entities
  /// that the document type declares are not known; lines and columns are counted in `xml`. Empty as well for an empty
  /// text, with `error` as it was. Linear in the length of `xml`. Throws std::bad_alloc when memory runs out.
  static std::vector<std::shared_ptr<axmNode>> fragment(axmNode& context, std::string_view xml, axmParseError& error);
};
