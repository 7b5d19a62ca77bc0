#include "axmNodeList.h"

#include <climits>

axmNodeList::axmNodeList() : cursor(-1) {}
axmNodeList::~axmNodeList() = default;

std::shared_ptr<axmElement> axmNodeList::operator()()
{
  return at(cursor);
}

bool axmNodeList::isEmpty() const
{
  return length() == 0;
}

bool axmNodeList::operator++()
{
  // Of a list that has become shorter the cursor may be far beyond, up to where it cannot go on.
  cursor = cursor == length() || cursor == INT_MAX ? 0 : cursor + 1;
  return !invalid();
}

void axmNodeList::reset()
{
  cursor = -1;
}

std::shared_ptr<axmElement> axmNodeList::next_node()
{
  return ++*this ? (*this)() : nullptr;
}

bool axmNodeList::invalid() const
{
  return cursor < 0 || cursor >= length();
}
