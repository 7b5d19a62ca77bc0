#include "axsHandle.h"

#include "axsDomAttribute.h"
#include "axsDomComment.h"
#include "axsDomDoctype.h"
#include "axsDomInstruction.h"
#include "axsDomNodeView.h"

#include <typeinfo>

axsNode* axsHandle::node_of(axmNode const& node) noexcept
{
  // Asking for the type and the whole object is a good deal cheaper than casting across to the record. The types are
  // known to this library only, so that each has one description.
  std::type_info const* const type = &typeid(node);
  void* const object = const_cast<void*>(dynamic_cast<void const*>(&node));
  if (type == &typeid(axsDomElement))
    return static_cast<axsDomElement*>(object);
  if (type == &typeid(axsDomText))
    return static_cast<axsDomText*>(object);
  if (type == &typeid(axsDomNodeView))
    return &static_cast<axsDomNodeView*>(object)->node();
  if (type == &typeid(axsDomAttribute))
    return static_cast<axsDomAttribute*>(object);
  if (type == &typeid(axsDomComment))
    return static_cast<axsDomComment*>(object);
  if (type == &typeid(axsDomDocument))
    return static_cast<axsDomDocument*>(object);
  if (type == &typeid(axsDomInstruction))
    return static_cast<axsDomInstruction*>(object);
  if (type == &typeid(axsDomDoctype))
    return static_cast<axsDomDoctype*>(object);
  return nullptr;
}

std::shared_ptr<axmNode> axsHandle::of(axsNode* node)
{
  if (node == nullptr)
    return nullptr;
  switch (node->kind())
  {
  case axsKind::document:
    return make<axmNode>(static_cast<axsDomDocument&>(*node));
  case axsKind::element:
    return make<axmNode>(static_cast<axsDomElement&>(*node));
  case axsKind::attribute:
    return make<axmNode>(static_cast<axsDomAttribute&>(*node));
  case axsKind::text:
  case axsKind::cdata_section:
    return make<axmNode>(static_cast<axsDomText&>(*node));
  case axsKind::comment:
    return make<axmNode>(static_cast<axsDomComment&>(*node));
  case axsKind::processing_instruction:
    return make<axmNode>(static_cast<axsDomInstruction&>(*node));
  case axsKind::doctype:
    return make<axmNode>(static_cast<axsDomDoctype&>(*node));
  }
  return nullptr;
}

std::shared_ptr<axmElement> axsHandle::of_item(axsNode& node)
{
  if (node.is_element())
    return make<axmElement>(static_cast<axsDomElement&>(node));
  return make_object<axmElement, axsDomNodeView>(axsDomDocument::of(node), node);
}
