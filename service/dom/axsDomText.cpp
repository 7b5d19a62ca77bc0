#include "axsDomText.h"

#include "axsHandle.h"

apString axsDomText::getNodeName() const
{
  return kind() == axsKind::text ? axsDomDocument::of(*this).name_of_texts() : axsDomNode::getNodeName();
}

std::shared_ptr<axmNode> axsDomText::getNextSibling()
{
  return axsHandle::of_next(next_sibling());
}
