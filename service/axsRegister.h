#pragma once

#include <axsExport.h>

/// Makes the default engine available: registers a factory under "XMLService" and "axs::XMLService" with utService, in
/// the place of whatever was registered there. May be called again and from any thread. Throws std::bad_alloc when memory
/// runs out.
///
/// What the engine promises beyond axmDocumentFactory:
/// - Threads: its const operations may be called from many threads at once, on one factory; a document with all its nodes,
///   lists and maps belongs to one thread at a time.
/// - Nodes, lists and maps hold what they need: a node stays valid as long as it is held, even if its tree and its
///   document have been let go. A `std::weak_ptr` holds no node, only some bytes of bookkeeping.
AXS_API void axs_register();
