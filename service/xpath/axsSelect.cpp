#include "axsTree.h"

#include "axsDocument.h"
#include "axsResultList.h"

std::shared_ptr<axmNodeList> axsTree::select_nodes(axsNode& context, apString const&)
{
  return std::allocate_shared<axsResultList>(
    axsHandleAllocator<axsResultList>(context.document().handle_pool()), std::vector<axsNode*>());
}

std::shared_ptr<axmNode> axsTree::select_single_node(axsNode&, apString const&)
{
  return nullptr;
}
