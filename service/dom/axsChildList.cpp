#include "axsChildList.h"

#include "axsChildPositions.h"
#include "axsDomDocument.h"
#include "axsHandle.h"

axsChildList::axsChildList(axsNode& node) : listed(node)
{
  if (node.is_parent())
    positions = &axsDomDocument::of(node).child_positions().acquire(static_cast<axsParent&>(node));
  listed.acquire();
}

axsChildList::~axsChildList()
{
  if (positions != nullptr)
    axsDomDocument::of(listed).child_positions().release(*positions);
  listed.release();
}

std::shared_ptr<axmElement> axsChildList::at(int index)
{
  axsNode* const child = positions == nullptr ? nullptr : positions->at(index);
  return child == nullptr ? nullptr : axsHandle::of_item(*child);
}

int axsChildList::length() const
{
  return positions == nullptr ? 0 : positions->count();
}
