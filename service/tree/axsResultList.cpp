#include "axsResultList.h"

#include "axsNode.h"

#include <axmElement.h>

#include <utility>

axsResultList::axsResultList(std::vector<axsNode*> found) noexcept : nodes(std::move(found))
{
  for (axsNode* const node : nodes)
    node->acquire();
}

axsResultList::~axsResultList()
{
  for (axsNode* const node : nodes)
    node->release();
}

std::shared_ptr<axmElement> axsResultList::at(int index)
{
  if (index < 0 || index >= length())
    return nullptr;
  return nodes[static_cast<std::size_t>(index)]->item_handle();
}

int axsResultList::length() const
{
  return static_cast<int>(nodes.size());
}
