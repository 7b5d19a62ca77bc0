#include "axsChildList.h"

#include "axsDocument.h"

axsChildList::axsChildList(axsNode& node) noexcept : parent(&node)
{
  parent->acquire();
  if (!parent->is_parent())
    return;
  parent->is_marked = true;
  axsChildList*& chain = parent->document().lists_of(*parent);
  next_list = chain;
  if (chain != nullptr)
    chain->previous_list = this;
  chain = this;
}

axsChildList::~axsChildList()
{
  if (parent->is_parent())
  {
    if (next_list != nullptr)
      next_list->previous_list = previous_list;
    (previous_list == nullptr ? parent->document().lists_of(*parent) : previous_list->next_list) = next_list;
  }
  parent->release();
}

std::shared_ptr<axmElement> axsChildList::at(int index)
{
  int const last = length() - 1;
  if (index < 0 || index > last)
    return nullptr;

  // From whichever is nearest: the last place, the start or the end.
  if (place == nullptr || index < place_index - index)
  {
    place = parent->first_child();
    place_index = 0;
  }
  if (index - place_index > last - index)
  {
    place = parent->last_child();
    place_index = last;
  }
  for (; place_index < index; ++place_index)
    place = place->next_sibling();
  for (; place_index > index; --place_index)
    place = place->previous_sibling();
  return place->item_handle();
}

int axsChildList::length() const
{
  if (count < 0)
  {
    count = 0;
    for (axsNode const* child = parent->first_child(); child != nullptr; child = child->next_sibling())
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
