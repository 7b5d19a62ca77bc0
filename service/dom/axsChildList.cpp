#include "axsChildList.h"

#include "axsChildPositions.h"
#include "axsDomDocument.h"
#include "axsHandle.h"

axsChildList::axsChildList(axsNode& node) : listed(node), hold(node)
{
  if (!node.is_parent())
    return;
  axsDomDocument& document = axsDomDocument::of(node);
  auto const lock = document.lock();
  positions = &document.child_positions().acquire(static_cast<axsParent&>(node));
}

axsChildList::~axsChildList()
{
  if (positions == nullptr)
    return;
  axsDomDocument& document = axsDomDocument::of(listed);
  auto const lock = document.lock();
  document.child_positions().release(*positions);
}

std::shared_ptr<axmElement> axsChildList::at(int index)
{
  axsNode* const child = child_at(index);
  return child == nullptr ? nullptr : axsHandle::of_item(*child);
}

int axsChildList::length() const
{
  if (positions == nullptr)
    return 0;
  auto const lock = axsDomDocument::of(listed).lock();
  return positions->count();
}

axsNode* axsChildList::child_at(int index)
{
  if (positions == nullptr)
    return nullptr;
  auto const lock = axsDomDocument::of(listed).lock();
  return positions->at(index);
}
