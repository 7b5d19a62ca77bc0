#pragma once

#include "axsDomDocument.h"
#include "axsDomElement.h"
#include "axsDomText.h"

#include <axmNode.h>

#include <memory>
#include <type_traits>
#include <utility>

/// Gives a held node back when the last copy of a shared pointer to it goes.
struct axsHandleRelease
{
  template <class Node>
  void operator()(Node* node) const noexcept
  {
    node->release();
  }
};

/// Pointers to nodes for callers. Whoever has one holds the node; see axsNode. All that make one throw std::bad_alloc when
/// memory runs out.
namespace axsHandle
{
/// The node that the interface stands for, be it that of a node or of a view; null if it is none of this engine.
axsNode* node_of(axmNode const& node) noexcept;

/// A pointer to the node as its interface, null if the node is null.
std::shared_ptr<axmNode> of(axsNode* node);

/// A pointer to the node as an item of a list, where a node that is no element is handed out as a view.
std::shared_ptr<axmElement> of_item(axsNode& node);

template <class Interface, class Node>
std::shared_ptr<Interface> make_first(Node& node);

/// A pointer to the node, whose class is known. Where that fails, a node that nobody else holds is freed.
///
/// Every step of a caller through the tree takes one. So what takes no call stands here, and the rest apart: saving
/// registers for calls that are hardly ever made took a sixth of the instructions.
template <class Interface, class Node>
[[gnu::always_inline]] inline std::shared_ptr<Interface> make(Node& node)
{
  // For most kinds it is known without a look that the node is no document.
  axsTree& tree = std::is_same_v<Node, axsDomDocument> ? node.tree() : axsArena::tree_of(&node);
  axsHandlePool& pool = static_cast<axsDomDocument&>(tree).handle_pool();
  if (!pool.is_ready())
    return make_first<Interface>(node);
  node.acquire();
  return std::shared_ptr<Interface>(&node, axsHandleRelease(), axsReadyAllocator<char>(pool));
}

/// The same where the pool of the document has to be made ready before, which that of a shared one never is: it has one
/// count for all pointers to its nodes.
template <class Interface, class Node>
[[gnu::noinline]] std::shared_ptr<Interface> make_first(Node& node)
{
  axsDomDocument& document = axsDomDocument::of(node);
  if (document.is_shared())
    return std::shared_ptr<Interface>(document.owner(), &node);
  // A node that nobody holds yet goes if that fails.
  node.acquire();
  std::unique_ptr<Node, axsHandleRelease> const held(&node);
  document.handle_pool().make_ready();
  return make<Interface>(node);
}

/// A list, map or view of nodes of the document.
template <class Interface, class Object, class... Arguments>
std::shared_ptr<Interface> make_object(axsDomDocument& document, Arguments&&... arguments)
{
  if (!document.is_shared())
    return std::allocate_shared<Object>(
      axsHandleAllocator<Object>(document.handle_pool()), std::forward<Arguments>(arguments)...);

  // The document goes after what looks at it.
  struct Holding
  {
    Holding(std::shared_ptr<axsDomDocument> holder, Arguments&&... parts)
      : owner(std::move(holder)),
        object(std::forward<Arguments>(parts)...)
    {
    }

    std::shared_ptr<axsDomDocument> const owner;
    Object object;
  };
  auto const made = std::make_shared<Holding>(document.owner(), std::forward<Arguments>(arguments)...);
  return std::shared_ptr<Interface>(made, &made->object);
}

/// The same as of(), made in place for what most nodes are. For the steps of a walk, of which there is one for every node
/// of a document.
[[gnu::always_inline]] inline std::shared_ptr<axmNode> of_next(axsNode* node)
{
  if (node == nullptr)
    return nullptr;
  if (node->is_element())
    return make<axmNode>(static_cast<axsDomElement&>(*node));
  if (node->kind() == axsKind::text)
    return make<axmNode>(static_cast<axsDomText&>(*node));
  return of(node);
}
}
