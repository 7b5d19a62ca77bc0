#include "axsAttribute.h"

#include "axsElement.h"

axsAttribute::axsAttribute(std::uint32_t room_behind, axsName const& name) noexcept
  : axsNodeOf(axsKind::attribute, this + 1, room_behind)
{
  attribute_name = &name;
}

axsElement* axsAttribute::owner() const noexcept
{
  return static_cast<axsElement*>(parent());
}
