#pragma once

#include "axsDomNode.h"
#include "axsLeaf.h"

#include <axmTextNode.h>

/// A text as its interface, be it written as it is or as a CDATA section.
class axsDomText final : public axsDomNode<axmTextNode, axsLeaf>
{
public:
  axsDomText(std::uint8_t units, axsKind kind) noexcept : axmNode(axmInPlace()), axsDomNode(kind, units) {}

  apString getNodeName() const override;
  std::shared_ptr<axmNode> getNextSibling() override;
  apString getNodeValue() const override { return apString::from_utf8(axsLeaf::text()); }
  apString getData() const override { return getNodeValue(); }
};
