#include "axsTextNode.h"

#include "axsDocument.h"

apString axsTextNode::getNodeName() const
{
  return is_cdata() ? axsTree::node_name(*this) : axsArena::document_of(this).names().of_texts();
}
