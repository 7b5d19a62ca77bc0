#pragma once

#include "axsHandle.h"
#include "axsXPath.h"
#include "axsXPathQuery.h"

/// What evaluations hand out.
namespace axsXPathAnswer
{
/// The value as callers get it. Throws std::bad_alloc when memory runs out.
axsXPath::Value of(axsXPathQuery::Value const& found);

/// The value of what `evaluate` makes of the node that `context` is and returns true for. False, with `value` as it was,
/// where it returns false or the context is no node of this engine.
template <class Evaluate>
bool give(axmNode& context, axsXPath::Value& value, axsXPathError& error, Evaluate evaluate)
{
  axsNode* const node = axsHandle::node_of(context);
  if (node == nullptr)
  {
    error = {"the context is no node of this engine", 1};
    return false;
  }
  axsXPathQuery::Value found;
  if (!evaluate(*node, found))
    return false;
  value = of(found);
  return true;
}
}
