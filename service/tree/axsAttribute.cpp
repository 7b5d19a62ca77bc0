#include "axsAttribute.h"

#include "axsElement.h"
#include "axsName.h"

axsAttribute::axsAttribute(std::uint8_t units, axsName const& name) noexcept
  : axsNodeOf(axsKind::attribute, this + 1, units)
{
  attribute_name = &name;
}

apString axsAttribute::getNodeName() const
{
  return full_name().wide();
}

axsElement* axsAttribute::owner() const noexcept
{
  return static_cast<axsElement*>(parent());
}
