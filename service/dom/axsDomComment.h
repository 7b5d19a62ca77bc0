#pragma once

#include "axsDomNode.h"
#include "axsLeaf.h"

#include <axmCommentNode.h>

/// A comment as its interface.
class axsDomComment final : public axsDomNode<axmCommentNode, axsLeaf>
{
public:
  explicit axsDomComment(std::uint8_t units) noexcept : axmNode(axmInPlace()), axsDomNode(axsKind::comment, units) {}

  apString getData() const override { return getNodeValue(); }
};
