#include "axsChildList.h"

#include "axsDomDocument.h"
#include "axsHandle.h"

axsChildList::axsChildList(axsNode& node) noexcept : listed(&node)
{
  listed->acquire();
  if (listed->is_parent())
    axsDomDocument::of(*listed).add(*this);
}

axsChildList::~axsChildList()
{
  if (listed->is_parent())
    axsDomDocument::of(*listed).remove(*this);
  listed->release();
}

std::shared_ptr<axmElement> axsChildList::at(int index)
{
  int const last = length() - 1;
  if (index < 0 || index > last)
    return nullptr;

  // From whichever is nearest: the last place, the start or the end.
  if (place == nullptr || index < place_index - index)
  {
    place = listed->first_child();
    place_index = 0;
  }
  if (index - place_index > last - index)
  {
    place = listed->last_child();
    place_index = last;
  }
  for (; place_index < index; ++place_index)
    place = place->next_sibling();
  for (; place_index > index; --place_index)
    place = place->previous_sibling();
  return axsHandle::of_item(*place);
}

int axsChildList::length() const
{
  if (count < 0)
  {
    count = 0;
    for (axsNode const* child = listed->first_child(); child != nullptr; child = child->next_sibling())
      ++count;
  }
  return count;
}

void axsChildList::child_linked(axsNode const& child) noexcept
{
  if (count >= 0)
    ++count;
  if (child.next_sibling() != nullptr)
    place = nullptr;
}

void axsChildList::child_unlinking(axsNode const& child) noexcept
{
  if (count >= 0)
    --count;
  // A loop that takes out what it stands on, from whatever end, goes on from the neighbour.
  if (place == &child && child.next_sibling() != nullptr)
    place = child.next_sibling();
  else if (place == &child)
  {
    place = child.previous_sibling();
    --place_index;
  }
  else if (child.next_sibling() != nullptr)
    place = nullptr;
}
