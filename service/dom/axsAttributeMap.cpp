#include "axsAttributeMap.h"

#include "axsElement.h"
#include "axsHandle.h"

axsAttributeMap::axsAttributeMap(axsElement& element) noexcept
  : owner(element),
    hold(element, axsArena::tree_of(&element))
{
}

axsAttributeMap::~axsAttributeMap() = default;

int axsAttributeMap::getLength()
{
  return owner.count_attributes();
}

std::shared_ptr<axmNode> axsAttributeMap::item(int index)
{
  if (index < 0)
    return nullptr;
  std::uint64_t const changes = axsArena::tree_of(&owner).attribute_changes();
  if (place != nullptr && changes == seen_changes && index == place_index + 1)
    place = place->next_attribute();
  else
    place = owner.attribute_at(index);
  place_index = index;
  seen_changes = changes;
  return axsHandle::of(place);
}

std::shared_ptr<axmNode> axsAttributeMap::getNamedItem(apString const& name)
{
  return axsHandle::of(owner.find_attribute(name.view()));
}

std::shared_ptr<axmNode> axsAttributeMap::removeNamedItem(apString const& name)
{
  axsAttribute* const attribute = owner.tree().is_shared() ? nullptr : owner.find_attribute(name.view());
  std::shared_ptr<axmNode> removed = axsHandle::of(attribute);
  if (removed != nullptr)
    owner.take_attribute(*attribute);
  return removed;
}

std::shared_ptr<axmNode> axsAttributeMap::setNamedItem(std::shared_ptr<axmNode> node)
{
  axsNode* const given = node == nullptr ? nullptr : axsHandle::node_of(*node);
  if (given == nullptr || !given->is_attribute() || &given->tree() != &owner.tree() || owner.tree().is_shared())
    return nullptr;
  auto& attribute = static_cast<axsAttribute&>(*given);
  if (attribute.owner() == &owner)
    return node;
  // An attribute belongs to one element (DOM Core, INUSE_ATTRIBUTE_ERR).
  if (attribute.owner() != nullptr)
    return nullptr;
  axsAttribute* const present = owner.find_attribute(attribute.full_name());
  std::shared_ptr<axmNode> replaced = axsHandle::of(present);
  owner.put_attribute(attribute, present);
  return replaced;
}
