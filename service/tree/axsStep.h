#pragma once

#include "axsElement.h"
#include "axsHandle.h"
#include "axsTextNode.h"

#include <memory>

/// A pointer to `node`, null if it is null: the same as handle(), made in place for what most nodes are. For the steps of
/// a walk, of which there is one for every node of a document. Throws std::bad_alloc when memory runs out.
[[gnu::always_inline]] inline std::shared_ptr<axmNode> axs_step(axsNode* node)
{
  if (node == nullptr)
    return nullptr;
  if (node->is_element())
    return axs_handle<axmNode>(static_cast<axsElement&>(*node));
  if (node->kind() == axsKind::text)
    return axs_handle<axmNode>(static_cast<axsTextNode&>(*node));
  return node->handle();
}
