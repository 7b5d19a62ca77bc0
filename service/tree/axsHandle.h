#pragma once

#include "axsDocument.h"

#include <memory>
#include <type_traits>

/// Gives a busy node back when the last copy of a shared pointer to it goes.
struct axsHandleRelease
{
  template <class Node>
  void operator()(Node* node) const noexcept
  {
    node->release();
  }
};

/// A pointer to `node` for a caller. Throws std::bad_alloc when memory runs out; the node is no more busy then.
template <class Interface, class Node>
std::shared_ptr<Interface> axs_handle(Node& node)
{
  // For most kinds it is known without a look that the node is no document.
  axsDocument& document = std::is_same_v<Node, axsDocument> ? node.document() : axsArena::document_of(&node);
  axsHandleAllocator<char> const allocator(document.handle_pool());
  node.acquire();
  return std::shared_ptr<Interface>(&node, axsHandleRelease(), allocator);
}
