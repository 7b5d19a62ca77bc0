#include "axsXPathQuery.h"

#include "axsXPathCache.h"
#include "axsXPathEvaluator.h"

#include <utUtf8.h>

#include <algorithm>
#include <unordered_set>

namespace
{
using Want = axsXPathPathEvaluator::Want;

/// The node of the tree that stands for a node; null if there is none.
axsNode* handed_out(axsXPathNode node) noexcept
{
  return node.is_virtual() ? node.virtual_node().declaration : node.node();
}

// In place: the node-set of //x may have millions of nodes.
std::vector<axsXPathNode> handed_out(std::vector<axsXPathNode> nodes)
{
  std::unordered_set<axsNode*> declarations;
  auto const place = [&](axsXPathNode& node)
  {
    if (!node.is_virtual())
      return true;
    node = handed_out(node);
    return !node.is_none() && declarations.insert(node.node()).second;
  };
  auto kept = nodes.begin();
  for (axsXPathNode& node : nodes)
    if (place(node))
      *kept++ = node;
  nodes.erase(kept, nodes.end());
  return nodes;
}

// The place in characters, that of the beginning being 1.
int position_of(std::size_t place, std::string_view text)
{
  return static_cast<int>(utUtf8::count(text.substr(0, place))) + 1;
}

bool bind(axsXPathEvaluator& evaluator, axsXPathPrefixes const& prefixes, std::string_view text, axsXPathError& error)
{
  std::size_t place = 0;
  if (evaluator.bind(prefixes, error, place))
    return true;
  error.position = position_of(place, text);
  return false;
}

bool bind(axsXPathEvaluator& evaluator, axsXPathVariables const& variables, axsXPathQuery::Compiled const& compiled,
  axsXPathError& error)
{
  std::size_t place = 0;
  if (evaluator.bind(variables, compiled.variables, error, place))
    return true;
  error.position = position_of(place, compiled.text);
  return false;
}

std::vector<axsXPathNode> select_nodes(axsXPathEvaluator& evaluator, axsXPathExpression const& expression,
  std::string_view text, Want want, axsXPathError& error)
{
  if (expression.term(expression.whole()).type != axsXPathType::node_set)
  {
    error.message = "the expression does not give a node-set";
    error.position = 1;
    return {};
  }
  if (!bind(evaluator, {}, text, error))
    return {};
  return evaluator.select(want);
}

axsXPathError error_of(axsXPathMeter::End end)
{
  return {end.is_stopped ? "the evaluation was stopped" : "the evaluation takes more steps than are allowed", 1};
}
}

std::vector<axsXPathNode> axsXPathQuery::select(
  axsXPathCache& cache, axsNode& context, std::string_view text, axsXPathError& error)
try
{
  auto const expression = cache.compile(text, error);
  if (expression == nullptr)
    return {};
  axsXPathEvaluator evaluator(*expression, context, axsXPathLimits());
  return handed_out(select_nodes(evaluator, *expression, text, Want::all, error));
}
catch (axsXPathMeter::End const end)
{
  error = error_of(end);
  return {};
}

axsNode* axsXPathQuery::select_first(
  axsXPathCache& cache, axsNode& context, std::string_view text, axsXPathError& error)
try
{
  auto const expression = cache.compile(text, error);
  if (expression == nullptr)
    return nullptr;
  axsXPathEvaluator evaluator(*expression, context, axsXPathLimits());
  std::vector<axsXPathNode> nodes = select_nodes(evaluator, *expression, text, Want::first, error);
  if (nodes.empty())
    return nullptr;
  if (axsNode* const shown = handed_out(nodes.front()))
    return shown;
  // The first node is one that cannot be handed out, but others may be.
  nodes = evaluator.select(Want::all);
  auto const found =
    std::find_if(nodes.begin(), nodes.end(), [](axsXPathNode node) { return handed_out(node) != nullptr; });
  return found == nodes.end() ? nullptr : handed_out(*found);
}
catch (axsXPathMeter::End const end)
{
  error = error_of(end);
  return nullptr;
}

bool axsXPathQuery::evaluate(axsXPathCache& cache, axsNode& context, std::string_view text,
  axsXPathPrefixes const& prefixes, axsXPathLimits const& limits, Value& value, axsXPathError& error)
{
  auto const expression = cache.compile(text, error);
  return expression != nullptr && evaluate({*expression, text, prefixes, {}}, context, {}, limits, value, error);
}

bool axsXPathQuery::evaluate(Compiled const& compiled, axsNode& context, axsXPathVariables const& variables,
  axsXPathLimits const& limits, Value& value, axsXPathError& error)
try
{
  error = axsXPathError();
  axsXPathEvaluator evaluator(compiled.expression, context, limits);
  if (!bind(evaluator, compiled.prefixes, compiled.text, error) || !bind(evaluator, variables, compiled, error))
    return false;
  axsXPathValue const found = evaluator.evaluate();
  value = Value();
  value.type = found.type;
  value.nodes = handed_out(found.nodes);
  value.boolean = found.boolean;
  value.number = found.number;
  value.text = evaluator.text_of_value(found);
  return true;
}
catch (axsXPathMeter::End const end)
{
  error = error_of(end);
  return false;
}
