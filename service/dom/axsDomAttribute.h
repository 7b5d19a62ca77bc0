#pragma once

#include "axsAttribute.h"
#include "axsDomNode.h"
#include "axsName.h"

/// An attribute as its interface. The element that has it does not show as its parent.
class axsDomAttribute final : public axsDomNode<axmNode, axsAttribute>
{
public:
  axsDomAttribute(std::uint8_t units, axsName const& name) noexcept : axsDomNode(units, name) {}

  apString getNodeName() const override { return full_name().wide(); }
  apString getNodeValue() const override { return apString::from_utf8(axsLeaf::text()); }

  // An attribute is no child (DOM Core, Interface Attr).
  std::shared_ptr<axmNode> getParentNode() override { return nullptr; }
  std::shared_ptr<axmNode> getNextSibling() override { return nullptr; }
};
