#pragma once

#include "axsHold.h"

#include <axmNamedNodeMap.h>

#include <cstdint>

class axsAttribute;
class axsElement;

/// The attributes of one element, live. Holds the element. Attributes keep the order in which they came.
class axsAttributeMap final : public axmNamedNodeMap
{
public:
  explicit axsAttributeMap(axsElement& element) noexcept;
  ~axsAttributeMap() override;

  // Costs: a step for each attribute passed or, where there are many, O(log n) and the making of an index once. A walk by
  // index costs a step for each attribute.
  int getLength() override;
  std::shared_ptr<axmNode> item(int index) override;
  std::shared_ptr<axmNode> getNamedItem(apString const& name) override;
  std::shared_ptr<axmNode> removeNamedItem(apString const& name) override;
  std::shared_ptr<axmNode> setNamedItem(std::shared_ptr<axmNode> node) override;

private:
  axsElement& owner;
  axsHold const hold;

  // The attribute handed out last by index, as long as no attribute came or went since.
  std::uint64_t seen_changes = 0;
  axsAttribute* place = nullptr;
  int place_index = 0;
};
