#include "axsTextNode.h"

#include "axsStep.h"

apString axsTextNode::getNodeName() const
{
  return is_cdata() ? axsTree::node_name(*this) : axsArena::document_of(this).names().of_texts();
}

std::shared_ptr<axmNode> axsTextNode::getNextSibling()
{
  return axs_step(next_sibling());
}
