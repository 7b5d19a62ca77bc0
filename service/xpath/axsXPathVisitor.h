#pragma once

#include "axsXPathNode.h"

#include <type_traits>

/// A reference to a callable that is passed each node that is found and returns whether to stop. Must not outlive the
/// callable, and is therefore made from a named object only.
class axsXPathVisitor
{
public:
  template <class Visit, class = std::enable_if_t<!std::is_same_v<std::remove_const_t<Visit>, axsXPathVisitor>>>
  axsXPathVisitor(Visit& visit) noexcept
    : callable(&visit),
      call([](void* object, axsXPathNode node) -> bool { return (*static_cast<Visit*>(object))(node); })
  {
  }

  bool operator()(axsXPathNode node) const { return call(callable, node); }

private:
  void* callable;
  bool (*call)(void*, axsXPathNode);
};
