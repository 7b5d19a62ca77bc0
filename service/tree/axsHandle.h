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

template <class Interface, class Node>
std::shared_ptr<Interface> axs_first_handle(Node& node);

/// A pointer to `node` for a caller. Throws std::bad_alloc when memory runs out; the node is no more busy then.
///
/// Every step of a caller through the tree takes one. So what takes no call stands here, and the rest apart: saving
/// registers for calls that are hardly ever made took a sixth of the instructions.
template <class Interface, class Node>
[[gnu::always_inline]] inline std::shared_ptr<Interface> axs_handle(Node& node)
{
  // For most kinds it is known without a look that the node is no document.
  axsDocument& document = std::is_same_v<Node, axsDocument> ? node.document() : axsArena::document_of(&node);
  axsHandlePool& pool = document.handle_pool();
  if (!pool.is_ready())
    return axs_first_handle<Interface>(node);
  node.acquire();
  return std::shared_ptr<Interface>(&node, axsHandleRelease(), axsReadyAllocator<char>(pool));
}

/// The same where the pool of the document has to be made ready before.
template <class Interface, class Node>
[[gnu::noinline]] std::shared_ptr<Interface> axs_first_handle(Node& node)
{
  // A node that nobody holds yet goes if that fails.
  node.acquire();
  std::unique_ptr<Node, axsHandleRelease> const held(&node);
  node.document().handle_pool().make_ready();
  return axs_handle<Interface>(node);
}
