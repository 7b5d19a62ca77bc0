#pragma once

#include "axsExport.h"
#include <axmDocument.h>

#include <memory>

/// Documents of the engine that many threads read at once.
///
/// A document belongs to one thread at a time, with all its nodes, lists and maps, until it is shared. From then on any number
/// of threads may read it, search it, save it and hold its nodes, each as long as it likes, and nothing changes it: what
/// would insert, move, remove, create or set something returns an empty pointer or false or, where it returns nothing, changes
/// nothing and reports an assertion (utAssert.h). A list or map still belongs to one thread at a time; each thread asks for
/// one of its own. Sharing cannot be taken back.
///
/// What it costs: a shared document has one count of all that is held of it, which the threads share; it goes, with all
/// its nodes, when that is nothing. Lists of children and the compiled forms of expressions are behind a lock, for the time
/// of a step. Documents that are not shared take no lock.
class AXS_API axsSharing
{
public:
  /// Shares the document: on success, `document` is a pointer to it for all threads. False, with nothing changed, when it is
  /// null or of another engine, or when anything else is held of it: a node, list or map, another copy of the pointer, or a
  /// `std::weak_ptr`. True as well for one that is shared already. Linear in the size of the document. Throws std::bad_alloc
  /// when memory runs out, with the document not shared.
  static bool share(std::shared_ptr<axmDocument>& document);

  /// Whether the node is in a document that is shared.
  static bool is_shared(axmNode const& node) noexcept;
};
