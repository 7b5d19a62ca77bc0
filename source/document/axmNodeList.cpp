#include <axmNodeList.h>

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
  cursor = cursor == length() ? 0 : cursor + 1;
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
