#pragma once

#include "axsNodeOf.h"

#include <axmTextNode.h>

/// A text of the tree, be it written as it is or as a CDATA section.
class axsTextNode final : public axsNodeOf<axmTextNode, axsLeaf>
{
public:
  explicit axsTextNode(std::uint8_t units) noexcept : axsNodeOf(axsKind::text, this + 1, units) {}

  apString getNodeName() const override;
  std::shared_ptr<axmNode> getNextSibling() override;
  apString getNodeValue() const override { return apString::from_utf8(text()); }
  apString getData() const override { return getNodeValue(); }
};
