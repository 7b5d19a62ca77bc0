#include "axsXPathEvaluator.h"

#include "axsTree.h"
#include "axsXPathNodeMap.h"
#include "axsXPathNumber.h"
#include "axsXPathScratchNodes.h"

#include <cmath>
#include <utility>

// Recursion is as deep as the expression is nested, which axsXPathParser::nesting_limit bounds.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Expression = axsXPathExpression;
using Type = axsXPathType;

// When the cache holds so many nodes, it is emptied: memory is finite.
std::size_t const max_cached_nodes = std::size_t{1} << 22;

int const few_operands = 4;

bool is_true(double number) noexcept
{
  return number != 0 && !std::isnan(number);
}

double as_number(bool value) noexcept
{
  return value ? 1 : 0;
}

// The element whose namespace declarations say what the prefixes of an expression mean: the nearest one of the context
// node or, outside of the root element, the root element. Null if there is none.
axsElement* scope_of(axsNode& node) noexcept
{
  axsNode* at = &node;
  while (at != nullptr && !at->is_element() && !at->is_document())
    at = at->parent();
  if (at != nullptr && at->is_document())
    return static_cast<axsTree*>(at)->root_element();
  return static_cast<axsElement*>(at);
}
}

axsXPathEvaluator::axsXPathEvaluator(
  axsXPathExpression const& evaluated, axsNode& context, axsXPathLimits const& limits)
  : expression(evaluated),
    context_node(context),
    meter(limits),
    data_model(context, meter),
    path_evaluator(expression, data_model, tests, *this),
    comparisons(expression, *this),
    core_library(expression, *this),
    values(static_cast<std::size_t>(expression.value_slots)),
    node_sets(static_cast<std::size_t>(expression.node_set_slots))
{
  initial_context.node = data_model.wrapped(context);
}

bool axsXPathEvaluator::bind(axsXPathPrefixes const& prefixes, axsXPathError& error, std::size_t& place)
{
  place = 0;
  if (initial_context.node.is_none())
  {
    error.message = "the context is no node of XPath";
    return false;
  }
  axsElement const* const scope = scope_of(context_node);
  tests.resize(expression.steps.size());
  for (std::size_t i = 0; i < tests.size(); ++i)
  {
    if (bind_step(expression.steps[i], prefixes, scope, tests[i]))
      continue;
    Expression::Name const& name = *expression.name_of(expression.steps[i].test);
    error.message = "the prefix '" + name.prefix + "' is not declared at the context node";
    place = name.position;
    return false;
  }
  return true;
}

bool axsXPathEvaluator::bind_step(
  Expression::Step const& step, axsXPathPrefixes const& prefixes, axsElement const* scope, axsXPathNodeTest& test)
{
  test.kind = step.test.kind;
  Expression::Name const* const found = expression.name_of(step.test);
  if (found == nullptr)
    return true;
  Expression::Name const& name = *found;
  test.local = name.local;
  test.has_target = test.kind == Expression::NodeTest::instruction;
  test.has_prefix = !name.prefix.empty();
  if (test.has_target)
    return true;
  if (!test.has_prefix)
  {
    test.name = context_node.tree().names().find(name.local);
    return true;
  }
  if (name.prefix == "xml")
    test.uri = axsXPathScopes::xml_uri;
  else if (auto const given = prefixes.find(name.prefix); given != prefixes.end())
    test.uri = given->second;
  else if (scope != nullptr)
    test.uri = data_model.scopes().uri(*scope, name.prefix);
  return !test.uri.empty();
}

bool axsXPathEvaluator::bind(
  axsXPathVariables const& given, axsXPathVariables const& usual, axsXPathError& error, std::size_t& place)
{
  for (Expression::Variable const& variable : expression.variables)
  {
    auto const found = given.find(variable.name);
    axsXPathVariable const& value = found == given.end() ? usual.at(variable.name) : found->second;
    if (value.type != variable.type)
    {
      error.message =
        "the value of the variable '" + variable.name + "' is of another type than the expression was made for";
      place = variable.position;
      return false;
    }
    variables.push_back(&value);
  }
  return true;
}

axsXPathValue axsXPathEvaluator::evaluate()
{
  return compute_value(expression.whole(), initial_context);
}

std::string axsXPathEvaluator::text_of_value(axsXPathValue const& value) const
{
  std::string scratch;
  switch (value.type)
  {
  case Type::node_set:
    return std::string(value.nodes.empty() ? std::string_view() : text_of_node(value.nodes.front(), scratch));
  case Type::boolean:
    return value.boolean ? "true" : "false";
  case Type::number:
    return axsXPathNumber::to_text(value.number);
  case Type::string:
    break;
  }
  return value.string;
}

axsXPathEvaluator::Nodes axsXPathEvaluator::select(Want want)
{
  Nodes found;
  nodes_of(expression.whole(), initial_context, want, found);
  return found;
}

bool axsXPathEvaluator::boolean_of(int index, Context const& context)
{
  Term const& term = expression.term(index);
  if (term.type == Type::node_set)
    return has_nodes(index, context);
  if (term.value_slot >= 0)
  {
    axsXPathValue const& value = cached_value(index, context);
    return term.type == Type::boolean  ? value.boolean
           : term.type == Type::number ? is_true(value.number)
                                       : !value.string.empty();
  }
  if (term.type == Type::boolean)
    return compute_boolean(term, context);
  if (term.type == Type::number)
    return is_true(compute_number(term, context));
  std::string scratch;
  return !compute_text(term, context, scratch).empty();
}

double axsXPathEvaluator::number_of(int index, Context const& context)
{
  Term const& term = expression.term(index);
  switch (term.type)
  {
  case Type::node_set:
    return number_of_node(first_node(index, context));
  case Type::boolean:
    return as_number(boolean_of(index, context));
  case Type::number:
    return term.value_slot >= 0 ? cached_value(index, context).number : compute_number(term, context);
  case Type::string:
    break;
  }
  std::string scratch;
  return axsXPathNumber::from_text(text_of(index, context, scratch));
}

std::string_view axsXPathEvaluator::text_of(int index, Context const& context, std::string& scratch)
{
  Term const& term = expression.term(index);
  switch (term.type)
  {
  case Type::node_set:
    return text_of_node(first_node(index, context), scratch);
  case Type::boolean:
    return boolean_of(index, context) ? "true" : "false";
  case Type::number:
    scratch = axsXPathNumber::to_text(number_of(index, context));
    return scratch;
  case Type::string:
    break;
  }
  return term.value_slot >= 0 ? std::string_view(cached_value(index, context).string)
                              : compute_text(term, context, scratch);
}

void axsXPathEvaluator::nodes_of(int index, Context const& context, Want want, Nodes& found)
{
  Term const& term = expression.term(index);
  if (term.value_slot >= 0)
    found = cached_value(index, context).nodes;
  else if (term.nodes_slot >= 0)
    found = cached_nodes(index, context);
  else
    return compute_nodes(term, context, want, found);
  meter.spend(found.size());
}

axsXPathValue axsXPathEvaluator::compute_value(int index, Context const& context)
{
  Term const& term = expression.term(index);
  axsXPathValue value;
  value.type = term.type;
  switch (term.type)
  {
  case Type::node_set:
    compute_nodes(term, context, axsXPathPathEvaluator::all, value.nodes);
    break;
  case Type::boolean:
    value.boolean = compute_boolean(term, context);
    break;
  case Type::number:
    value.number = compute_number(term, context);
    break;
  case Type::string:
  {
    std::string scratch;
    value.string = compute_text(term, context, scratch);
    break;
  }
  }
  return value;
}

bool axsXPathEvaluator::compute_boolean(Term const& term, Context const& context)
{
  switch (term.kind)
  {
  case Expression::or_:
    for (int i = 0; i < term.count; ++i)
      if (boolean_of(expression.operand(term, i).term, context))
        return true;
    return false;
  case Expression::and_:
    for (int i = 0; i < term.count; ++i)
      if (!boolean_of(expression.operand(term, i).term, context))
        return false;
    return true;
  case Expression::comparison:
    return comparisons.compare(term, context);
  case Expression::variable:
    return is_true(variable_of(term).number);
  default:
    return core_library.boolean_call(term, context);
  }
}

double axsXPathEvaluator::compute_number(Term const& term, Context const& context)
{
  switch (term.kind)
  {
  case Expression::constant:
    return term.number;
  case Expression::variable:
    return variable_of(term).number;
  case Expression::arithmetic:
    return arithmetic(term, context);
  case Expression::negation:
    return -number_of(expression.operand(term, 0).term, context);
  case Expression::double_negation:
    return number_of(expression.operand(term, 0).term, context);
  default:
    return core_library.number_call(term, context);
  }
}

std::string_view axsXPathEvaluator::compute_text(Term const& term, Context const& context, std::string& scratch)
{
  if (term.kind == Expression::literal)
    return expression.literal_of(term);
  if (term.kind == Expression::variable)
    return variable_of(term).text;
  return core_library.text_call(term, context, scratch);
}

void axsXPathEvaluator::compute_nodes(Term const& term, Context const& context, Want want, Nodes& found)
{
  switch (term.kind)
  {
  case Expression::path:
    path_evaluator.select(expression.path_of(term), context, want, found);
    return;
  case Expression::union_:
    return compute_union(term, context, want, found);
  default:
    core_library.nodes_call(term, context, found);
  }
}

// Of many operands, each node is taken once at once: together they may have as many as all operands have nodes.
void axsXPathEvaluator::compute_union(Term const& term, Context const& context, Want want, Nodes& found)
{
  axsXPathScratchNodes part(path_evaluator);
  axsXPathNodeMap seen;
  for (int i = 0; i < term.count; ++i)
  {
    part.nodes().clear();
    nodes_of(expression.operand(term, i).term, context, want, part.nodes());
    meter.spend(part.nodes().size());
    for (axsXPathNode const node : part.nodes())
      if (term.count <= few_operands || seen.insert(node))
        found.push_back(node);
  }
  path_evaluator.sort(found);
}

axsXPathValue const& axsXPathEvaluator::cached_value(int index, Context const& context)
{
  std::optional<axsXPathValue>& value = values[static_cast<std::size_t>(expression.term(index).value_slot)];
  if (!value)
    value = compute_value(index, context);
  return *value;
}

axsXPathEvaluator::Nodes const& axsXPathEvaluator::cached_nodes(int index, Context const& context)
{
  Term const& term = expression.term(index);
  CachedNodes& table = node_sets[static_cast<std::size_t>(term.nodes_slot)];
  CacheKey const key{(term.uses & Expression::uses_node) != 0 ? context.node : axsXPathNode(),
    (term.uses & Expression::uses_position) != 0 ? context.position : 0,
    (term.uses & Expression::uses_size) != 0 ? context.size : 0};
  auto const known = table.find(key);
  if (known != table.end())
    return known->second;

  Nodes found;
  compute_nodes(term, context, axsXPathPathEvaluator::all, found);
  found.shrink_to_fit();
  cached_node_count += found.size() + 1;
  if (cached_node_count > max_cached_nodes)
  {
    for (CachedNodes& each : node_sets)
      each.clear();
    cached_node_count = found.size() + 1;
  }
  return table.emplace(key, std::move(found)).first->second;
}

bool axsXPathEvaluator::visit_nodes(int index, Context const& context, axsXPathVisitor visit)
{
  Term const& term = expression.term(index);
  if (term.kind == Expression::path && term.value_slot < 0 && term.nodes_slot < 0)
    return path_evaluator.visit(expression.path_of(term), context, visit);
  axsXPathScratchNodes scratch(path_evaluator);
  nodes_of(index, context, axsXPathPathEvaluator::all, scratch.nodes());
  for (axsXPathNode const node : scratch.nodes())
    if (visit(node))
      return true;
  return false;
}

bool axsXPathEvaluator::has_nodes(int index, Context const& context)
{
  Term const& term = expression.term(index);
  if (term.value_slot >= 0)
    return !cached_value(index, context).nodes.empty();
  if (term.nodes_slot >= 0)
    return !cached_nodes(index, context).empty();
  axsXPathScratchNodes scratch(path_evaluator);
  compute_nodes(term, context, axsXPathPathEvaluator::any, scratch.nodes());
  return !scratch.nodes().empty();
}

axsXPathNode axsXPathEvaluator::first_node(int index, Context const& context)
{
  axsXPathScratchNodes scratch(path_evaluator);
  nodes_of(index, context, axsXPathPathEvaluator::first, scratch.nodes());
  return scratch.nodes().empty() ? axsXPathNode() : scratch.nodes().front();
}

double axsXPathEvaluator::number_of_node(axsXPathNode node) const
{
  std::string scratch;
  return axsXPathNumber::from_text(text_of_node(node, scratch));
}

double axsXPathEvaluator::arithmetic(Term const& term, Context const& context)
{
  double result = number_of(expression.operand(term, 0).term, context);
  for (int i = 1; i < term.count; ++i)
  {
    double const next = number_of(expression.operand(term, i).term, context);
    switch (expression.operand(term, i).before)
    {
    case Expression::add:
      result += next;
      break;
    case Expression::subtract:
      result -= next;
      break;
    case Expression::multiply:
      result *= next;
      break;
    case Expression::divide:
      result /= next;
      break;
    default:
      result = std::fmod(result, next);
    }
  }
  return result;
}

// NOLINTEND(misc-no-recursion)
