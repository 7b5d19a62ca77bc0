#pragma once

#include "axsNodeOf.h"

#include <axmCommentNode.h>

/// A comment of the tree.
class axsCommentNode final : public axsNodeOf<axmCommentNode, axsLeaf>
{
public:
  explicit axsCommentNode(std::uint32_t room_behind) noexcept : axsNodeOf(axsKind::comment, this + 1, room_behind) {}

  apString getData() const override { return getNodeValue(); }
};
