#pragma once

#include "axsNodeOf.h"

#include <axmTextNode.h>

/// A text of the tree, be it written as it is or as a CDATA section.
class axsTextNode final : public axsNodeOf<axmTextNode, axsLeaf>
{
public:
  explicit axsTextNode(std::uint32_t room_behind) noexcept : axsNodeOf(axsKind::text, this + 1, room_behind) {}

  apString getData() const override { return getNodeValue(); }
};
