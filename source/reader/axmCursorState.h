#pragma once

#include "axmElementIndex.h"

#include <cstdint>

// What the index of the elements knows about a cursor: its element, and where in the content it stands. Not installed.
struct axmCursorState
{
  axmElementIndex::Id element = axmElementIndex::none; // none where the index does not know it

  // The first child that is not passed yet, as soon as the index has come to it; none if not known.
  axmElementIndex::Id upcoming = axmElementIndex::none;

  // The child, or else the element whose opening tag, at the end of which the cursor stands; none where it stands on a tag.
  axmElementIndex::Id passed = axmElementIndex::none;

  bool must_scan = true; // whether the cursor has to take its own steps

  // What the names of all children begin with, one bit of 64 for the first two characters, as soon as a search in vain has
  // seen them all: a name whose bit is not here need not be looked for.
  bool has_name_filter = false;
  std::uint64_t name_filter = 0;
};
