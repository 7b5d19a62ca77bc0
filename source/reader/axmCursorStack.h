#pragma once

#include "axmCursorState.h"
#include "axmPositionXcoPageArrPrgcoPrgcoPageArr.h"

#include <coDynArr.h>

// The cursors of the elements that are entered, the outermost at the bottom, each with what is known of it. The cursors
// are those of a reader, which must live longer and leave its own to this. Not installed.
class axmCursorStack
{
public:
  struct Level
  {
    axmPositionX* cursor;
    axmCursorState state;
  };

  explicit axmCursorStack(axmPositionXcoPageArrPrgcoPrgcoPageArr& cursors) : taken(cursors) {}

  int depth() const { return taken.count(); }

  // The one at that depth, 0 being the outermost one.
  Level& operator[](int depth) { return levels[depth]; }

  // The innermost one; there must be one.
  Level& top() { return levels[depth() - 1]; }

  // The one that push() puts on top; there must be one.
  Level& upcoming() { return levels[depth()]; }
  bool has_upcoming() const { return depth() < levels.count(); }

  // Adds `cursor`, which the reader keeps above those in use, as upcoming(). Throws std::bad_alloc when memory runs out.
  void add(axmPositionX& cursor);

  void push() { taken[depth()]; }

  // Takes the innermost one away. What is known of it stays in upcoming().
  void pop() { taken.shrink(depth() - 1, 0); }

private:
  axmPositionXcoPageArrPrgcoPrgcoPageArr& taken;
  coDynArr<Level> levels; // of every cursor that there ever was
};
