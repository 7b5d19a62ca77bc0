#include "axsGrowth.h"

#include "axsInputBuffer.h"

bool axsGrowth::add(std::size_t bytes) noexcept
{
  added += bytes;
  return added <= free / 2 || added / (limit / 2) <= document.position(document.end());
}
