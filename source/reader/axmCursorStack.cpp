#include "axmCursorStack.h"

#include <new>

void axmCursorStack::add(axmPositionX& cursor)
{
  if (!levels.append({&cursor, axmCursorState()}))
    throw std::bad_alloc();
}
