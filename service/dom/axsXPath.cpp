#include "axsXPath.h"

#include "axsHandle.h"
#include "axsXPathQuery.h"

#include <utility>

bool axsXPath::evaluate(axmNode& context, apString const& expression, Value& value, axsXPathError& error)
{
  return evaluate(context, expression, {}, value, error);
}

bool axsXPath::evaluate(
  axmNode& context, apString const& expression, axsXPathPrefixes const& prefixes, Value& value, axsXPathError& error)
{
  return evaluate(context, expression, prefixes, axsXPathLimits(), value, error);
}

bool axsXPath::evaluate(axmNode& context, apString const& expression, axsXPathPrefixes const& prefixes,
  axsXPathLimits const& limits, Value& value, axsXPathError& error)
{
  axsNode* const node = axsHandle::node_of(context);
  if (node == nullptr)
  {
    error = {"the context is no node of this engine", 1};
    return false;
  }
  axsXPathCache& cache = axsDomDocument::of(*node).xpath_cache();
  axsXPathQuery::Value found;
  if (!axsXPathQuery::evaluate(cache, *node, expression.to_utf8().view(), prefixes, limits, found, error))
    return false;

  Value made;
  made.type = found.type;
  made.nodes.reserve(found.nodes.size());
  for (axsXPathNode const each : found.nodes)
    made.nodes.push_back(axsHandle::of(each.node()));
  made.boolean = found.boolean;
  made.number = found.number;
  made.text = apString::from_utf8(found.text);
  value = std::move(made);
  return true;
}
