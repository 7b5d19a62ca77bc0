#pragma once

#include "axsNodeOf.h"

class axsElement;
class axsName;

/// An attribute of the tree. Its parent(), which the interface does not show, is the element that has it.
class axsAttribute final : public axsNodeOf<axmNode, axsLeaf>
{
public:
  axsAttribute(std::uint8_t units, axsName const& name) noexcept;

  apString getNodeName() const override;
  apString getNodeValue() const override { return apString::from_utf8(text()); }

  // An attribute is no child (DOM Core, Interface Attr).
  std::shared_ptr<axmNode> getParentNode() override { return nullptr; }
  std::shared_ptr<axmNode> getNextSibling() override { return nullptr; }

  axsName const& full_name() const noexcept { return *attribute_name; }

  axsElement* owner() const noexcept;

  axsAttribute* next_attribute() const noexcept { return static_cast<axsAttribute*>(next_sibling()); }
};
