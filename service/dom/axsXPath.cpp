#include "axsXPath.h"

#include "axsXPathAnswer.h"

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
  return axsXPathAnswer::give(context, value, error,
    [&](axsNode& node, axsXPathQuery::Value& found)
    {
      axsXPathCache& cache = axsDomDocument::of(node).xpath_cache();
      return axsXPathQuery::evaluate(cache, node, expression.to_utf8().view(), prefixes, limits, found, error);
    });
}
