#include <axsXPath.h>

#include <axsXPathQuery.h>

#include <axsNode.h>

#include <utility>

bool axsXPath::evaluate(axmNode& context, apString const& expression, Value& value, axsXPathError& error)
{
  axsNode* const node = axsNode::of(context);
  if (node == nullptr)
  {
    error = {"the context is no node of this engine", 1};
    return false;
  }
  utString const text = expression.to_utf8();
  axsXPathQuery::Value found;
  if (!axsXPathQuery::evaluate(*node, {text.c_str(), static_cast<std::size_t>(text.length())}, found, error))
    return false;

  Value made;
  made.type = found.type;
  made.nodes.reserve(found.nodes.size());
  for (axsXPathNode const each : found.nodes)
    made.nodes.push_back(each.node()->handle());
  made.boolean = found.boolean;
  made.number = found.number;
  made.text = apString::from_utf8(found.text);
  value = std::move(made);
  return true;
}
