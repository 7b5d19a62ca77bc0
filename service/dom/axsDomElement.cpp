#include "axsDomElement.h"

#include "axsAttributeMap.h"
#include "axsDomAttribute.h"
#include "axsHandle.h"

#include <new>

std::shared_ptr<axmNode> axsDomElement::getFirstChild()
{
  return axsHandle::of_next(first_child());
}

std::shared_ptr<axmNode> axsDomElement::getNextSibling()
{
  return axsHandle::of_next(next_sibling());
}

apString axsDomElement::getNodeName() const
{
  return element_name().wide();
}

std::shared_ptr<axmNamedNodeMap> axsDomElement::getAttributes()
{
  return axsHandle::make_object<axmNamedNodeMap, axsAttributeMap>(axsDomDocument::of(*this), *this);
}

void axsDomElement::reserved_element_0() {}
void axsDomElement::reserved_element_7() {}
void axsDomElement::reserved_element_8() {}
void axsDomElement::reserved_element_9() {}
void axsDomElement::reserved_element_10() {}
void axsDomElement::reserved_element_11() {}

apString axsDomElement::getAttribute(apString const& name) const
{
  axsAttribute const* const attribute = find_attribute(name.view());
  return attribute == nullptr ? apString() : apString::from_utf8(attribute->text());
}

void axsDomElement::setAttribute(apString const& name, apString const& value)
{
  utString text;
  if (!axsDomOperations::may_change(*this) || !axsDomOperations::to_utf8(value, text))
    return;
  if (axsAttribute* const present = find_attribute(name.view()))
    return present->set_text(text.view());
  axsDomDocument& document = axsDomDocument::of(*this);
  if (axsName const* const known = document.names().intern_checked(name))
    append_new_attribute(*document.make_attribute(*known, text.view()), last_attribute());
}

void axsDomElement::removeAttribute(apString const& name)
{
  if (!axsDomOperations::may_change(*this))
    return;
  if (axsAttribute* const attribute = find_attribute(name.view()))
    take_attribute(*attribute);
}

bool axsDomElement::hasAttribute(apString const& name) const
{
  return find_attribute(name.view()) != nullptr;
}

std::shared_ptr<axmNodeList> axsDomElement::selectNodes(apString const& xpath)
{
  return axsDomOperations::select_nodes(*this, xpath);
}

std::shared_ptr<axmNode> axsDomElement::selectSingleNode(apString const& xpath)
{
  return axsDomOperations::select_single_node(*this, xpath);
}

bool axsDomElement::set_attribute(apString const& name, apString const& value)
{
  return !tree().is_shared() && axmNode::set_attribute(name, value);
}

bool axsDomElement::get_attribute(apString const& name, apString& value) const
try
{
  axsAttribute const* const attribute = find_attribute(name.view());
  if (attribute == nullptr)
    return false;
  value.assign_utf8(attribute->text());
  return true;
}
catch (std::bad_alloc const&)
{
  return false;
}
