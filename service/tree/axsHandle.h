#pragma once

#include "axsDocument.h"

#include <memory>

/// Gives a busy node back when the last copy of a shared pointer to it goes.
struct axsHandleRelease
{
  axsNode* node;

  void operator()(void const*) const noexcept { node->release(); }
};

/// A pointer to `node` for a caller. Throws std::bad_alloc when memory runs out; the node is no more busy then.
template <class Interface, class Node>
std::shared_ptr<Interface> axs_handle(Node& node)
{
  axsHandleAllocator<char> const allocator(node.document().handle_pool());
  node.acquire();
  return std::shared_ptr<Interface>(&node, axsHandleRelease{&node}, allocator);
}
