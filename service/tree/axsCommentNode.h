#pragma once

#include "axsNodeOf.h"

#include <axmCommentNode.h>

/// A comment of the tree.
class axsCommentNode final : public axsNodeOf<axmCommentNode, axsLeaf>
{
public:
  explicit axsCommentNode(std::uint8_t units) noexcept : axsNodeOf(axsKind::comment, this + 1, units) {}

  apString getData() const override { return getNodeValue(); }
};
