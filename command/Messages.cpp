#include "Messages.h"

#include <iostream>

namespace
{
// Null for standard error.
thread_local std::ostream* current = nullptr;
}

std::ostream& messages()
{
  return current == nullptr ? std::cerr : *current;
}

MessageScope::MessageScope(std::ostream& stream) : before(current)
{
  current = &stream;
}

MessageScope::~MessageScope()
{
  current = before;
}
