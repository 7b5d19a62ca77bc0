#include "axsChildList.h"

#include "axsChildPositions.h"
#include "axsDomDocument.h"
#include "axsHandle.h"

// Lists of one thread only have no lock.
template <class Work>
auto axsChildList::while_locked(Work work) const
{
  if (lock == nullptr)
    return work();
  std::lock_guard<std::mutex> const guard(*lock);
  return work();
}

axsChildList::axsChildList(axsNode& node) : axsChildList(node, axsDomDocument::of(node)) {}

axsChildList::axsChildList(axsNode& node, axsDomDocument& owner)
  : document(owner),
    lock(owner.shared_lock()),
    hold(node, owner)
{
  if (node.is_parent())
    positions = while_locked([&] { return &document.child_positions().acquire(static_cast<axsParent&>(node)); });
}

axsChildList::~axsChildList()
{
  if (positions != nullptr)
    while_locked([&] { document.child_positions().release(*positions); });
}

std::shared_ptr<axmElement> axsChildList::at(int index)
{
  if (positions == nullptr)
    return nullptr;
  axsNode* const child = while_locked([&] { return positions->at(index); });
  return child == nullptr ? nullptr : axsHandle::of_item(*child);
}

int axsChildList::length() const
{
  return positions == nullptr ? 0 : while_locked([&] { return positions->count(); });
}
