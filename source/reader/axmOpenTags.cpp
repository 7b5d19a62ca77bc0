#include "axmOpenTags.h"

#include <new>

void axmOpenTags::push(axmTagName name)
{
  if (depth < near_levels)
    nearest[depth] = name;
  else if (!further.append(name))
    throw std::bad_alloc();
  ++depth;
}
