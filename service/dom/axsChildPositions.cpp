#include "axsChildPositions.h"

#include <cstdlib>
#include <new>

namespace
{
// Walks may cost so many steps a child before there is an index.
std::size_t const steps_a_child = 4;
std::size_t const free_steps = 1000;
// With an index, a walk of so many steps from the last place is cheaper than a look into it.
int const near_steps = 8;
}

axsNode* axsChildPositions::at(int position) noexcept
{
  if (position < 0 || position >= count())
    return nullptr;
  if (index != nullptr && (place == nullptr || std::abs(position - place_position) > near_steps))
    place = index->at(static_cast<std::size_t>(position));
  else
    place = walk_to(position);
  place_position = position;
  return place;
}

int axsChildPositions::count() noexcept
{
  if (child_count < 0)
  {
    child_count = 0;
    for (axsNode const* child = parent->first_child(); child != nullptr; child = child->next_sibling())
      ++child_count;
  }
  return child_count;
}

// From whichever is nearest: the last place, the first or the last child.
axsNode* axsChildPositions::walk_to(int position) noexcept
{
  int const last = child_count - 1;
  axsNode* node = place;
  int at = place_position;
  if (node == nullptr || position < at - position)
  {
    node = parent->first_child();
    at = 0;
  }
  if (position - at > last - position)
  {
    node = parent->last_child();
    at = last;
  }
  int const distance = std::abs(position - at);
  for (; at < position; ++at)
    node = node->next_sibling();
  for (; at > position; --at)
    node = node->previous_sibling();

  if (distance > near_steps)
    steps += static_cast<std::size_t>(distance);
  if (index == nullptr && steps > steps_a_child * static_cast<std::size_t>(child_count) + free_steps)
    make_index();
  return node;
}

// Without memory for it, walks go on.
void axsChildPositions::make_index() noexcept
try
{
  steps = 0;
  index = std::make_unique<axsSiblingIndex>(parent->first_child());
}
catch (std::bad_alloc const&)
{
  index = nullptr;
}

void axsChildPositions::child_linked(axsNode& child) noexcept
{
  if (child_count >= 0)
    ++child_count;
  axsNode const* const previous = child.previous_sibling();
  if (index != nullptr)
    try
    {
      index->insert(child, previous);
    }
    catch (std::bad_alloc const&)
    {
      index = nullptr;
    }
  // Before the place is what is first or next to it; after it what is last or next to it.
  if (place == nullptr)
    return;
  if (previous == nullptr || child.next_sibling() == place)
    ++place_position;
  else if (child.next_sibling() != nullptr && previous != place)
    place = nullptr;
}

void axsChildPositions::child_unlinking(axsNode& child) noexcept
{
  if (child_count >= 0)
    --child_count;
  if (index != nullptr)
    index->remove(child);
  if (place == nullptr)
    return;
  axsNode* const previous = child.previous_sibling();
  axsNode* const next = child.next_sibling();
  // A loop that removes the child it stands on, from whatever end, goes on from the neighbour.
  if (place == &child)
  {
    place = next != nullptr ? next : previous;
    if (next == nullptr)
      --place_position;
  }
  else if (previous == nullptr || next == place)
    --place_position;
  else if (next != nullptr && previous != place)
    place = nullptr;
}
