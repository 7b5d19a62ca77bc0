#include "axsXPathEvaluator.h"

#include "axsTree.h"
#include "axsXPathLease.h"
#include "axsXPathNumber.h"
#include "axsXPathText.h"

#include <utUtf8.h>
#include <utXmlCharacter.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

// Expressions are parsed and evaluated as deep as they lie in themselves, and axsXPathParser::nesting_limit bounds that.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Expression = axsXPathExpression;
using Function = axsXPathFunction;
using Selector = axsXPathSelector;
using Type = axsXPathType;

// So many nodes are kept at most before what is kept is dropped: memory has an end, too.
std::size_t const most_kept_nodes = std::size_t{1} << 22;

bool is_true(double number) noexcept
{
  return number != 0 && !std::isnan(number);
}

bool is_equality(Expression::Operator how) noexcept
{
  return how == Expression::equal || how == Expression::not_equal;
}

/// The operator that says of (b, a) what `how` says of (a, b).
Expression::Operator mirrored(Expression::Operator how) noexcept
{
  switch (how)
  {
  case Expression::less:
    return Expression::greater;
  case Expression::less_equal:
    return Expression::greater_equal;
  case Expression::greater:
    return Expression::less;
  case Expression::greater_equal:
    return Expression::less_equal;
  default:
    return how;
  }
}

bool holds(Expression::Operator how, double left, double right) noexcept
{
  switch (how)
  {
  case Expression::equal:
    return left == right;
  case Expression::not_equal:
    return left != right;
  case Expression::less:
    return left < right;
  case Expression::less_equal:
    return left <= right;
  case Expression::greater:
    return left > right;
  default:
    return left >= right;
  }
}

double as_number(bool value) noexcept
{
  return value ? 1 : 0;
}

char lower(char c) noexcept
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equals_in_any_case(std::string_view left, std::string_view right) noexcept
{
  return std::equal(
    left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) { return lower(a) == lower(b); });
}

/// The element in whose scope the prefixes of an expression are that is evaluated for `node`: the nearest one, for what
/// stands outside of the root element that. Null if there is none.
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

axsXPathEvaluator::axsXPathEvaluator(axsXPathExpression const& expression, axsNode& context)
  : parsed(expression),
    given(context),
    tree(context),
    selector(expression, tree, tests, *this),
    values(static_cast<std::size_t>(expression.kept_values)),
    node_tables(static_cast<std::size_t>(expression.kept_node_tables))
{
  whole_context.node = tree.wrapped(context);
}

bool axsXPathEvaluator::bind(axsXPathError& error, std::size_t& place)
{
  place = 0;
  if (whole_context.node.is_none())
  {
    error.message = "the context is no node of XPath";
    return false;
  }
  axsElement const* const scope = scope_of(given);
  tests.resize(parsed.steps.size());
  for (std::size_t i = 0; i < tests.size(); ++i)
  {
    if (bind_step(parsed.steps[i], scope, tests[i]))
      continue;
    Expression::Name const& name = parsed.names[static_cast<std::size_t>(parsed.steps[i].test.name_index)];
    error.message = "the prefix '" + name.prefix + "' is not declared at the context node";
    place = name.position;
    return false;
  }
  return true;
}

bool axsXPathEvaluator::bind_step(Expression::Step const& step, axsElement const* scope, axsXPathTest& test)
{
  test.kind = step.test.kind;
  if (step.test.name_index < 0)
    return true;
  Expression::Name const& name = parsed.names[static_cast<std::size_t>(step.test.name_index)];
  test.local = name.local;
  test.has_target = test.kind == Expression::NodeTest::instruction;
  test.has_prefix = !name.prefix.empty();
  if (test.has_target)
    return true;
  if (!test.has_prefix)
  {
    test.name = given.tree().names().find(name.local);
    return true;
  }
  if (name.prefix == "xml")
    test.uri = axsXPathScopes::xml_uri;
  else if (scope != nullptr)
    test.uri = tree.scopes().uri(*scope, name.prefix);
  return !test.uri.empty();
}

axsXPathValue axsXPathEvaluator::evaluate()
{
  return fresh_value(static_cast<int>(parsed.terms.size()) - 1, whole_context);
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
  nodes_of(static_cast<int>(parsed.terms.size()) - 1, whole_context, want, found);
  return found;
}

bool axsXPathEvaluator::boolean_of(int index, Context const& context)
{
  Term const& term = term_at(index);
  if (term.type == Type::node_set)
    return has_nodes(index, context);
  if (term.kept_value >= 0)
  {
    axsXPathValue const& kept = kept_value(index, context);
    return term.type == Type::boolean  ? kept.boolean
           : term.type == Type::number ? is_true(kept.number)
                                       : !kept.string.empty();
  }
  if (term.type == Type::boolean)
    return fresh_boolean(term, context);
  if (term.type == Type::number)
    return is_true(fresh_number(term, context));
  std::string scratch;
  return !fresh_text(term, context, scratch).empty();
}

double axsXPathEvaluator::number_of(int index, Context const& context)
{
  Term const& term = term_at(index);
  switch (term.type)
  {
  case Type::node_set:
    return number_of_node(first_node(index, context));
  case Type::boolean:
    return as_number(boolean_of(index, context));
  case Type::number:
    return term.kept_value >= 0 ? kept_value(index, context).number : fresh_number(term, context);
  case Type::string:
    break;
  }
  std::string scratch;
  return axsXPathNumber::from_text(text_of(index, context, scratch));
}

std::string_view axsXPathEvaluator::text_of(int index, Context const& context, std::string& scratch)
{
  Term const& term = term_at(index);
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
  return term.kept_value >= 0 ? std::string_view(kept_value(index, context).string)
                              : fresh_text(term, context, scratch);
}

void axsXPathEvaluator::nodes_of(int index, Context const& context, Want want, Nodes& found)
{
  Term const& term = term_at(index);
  if (term.kept_value >= 0)
    found = kept_value(index, context).nodes;
  else if (term.kept_nodes >= 0)
    found = kept_nodes(index, context);
  else
    fresh_nodes(term, context, want, found);
}

axsXPathValue axsXPathEvaluator::fresh_value(int index, Context const& context)
{
  Term const& term = term_at(index);
  axsXPathValue value;
  value.type = term.type;
  switch (term.type)
  {
  case Type::node_set:
    fresh_nodes(term, context, Selector::all, value.nodes);
    break;
  case Type::boolean:
    value.boolean = fresh_boolean(term, context);
    break;
  case Type::number:
    value.number = fresh_number(term, context);
    break;
  case Type::string:
  {
    std::string scratch;
    value.string = fresh_text(term, context, scratch);
    break;
  }
  }
  return value;
}

bool axsXPathEvaluator::fresh_boolean(Term const& term, Context const& context)
{
  switch (term.kind)
  {
  case Expression::or_:
    for (int i = 0; i < term.count; ++i)
      if (boolean_of(operand(term, i), context))
        return true;
    return false;
  case Expression::and_:
    for (int i = 0; i < term.count; ++i)
      if (!boolean_of(operand(term, i), context))
        return false;
    return true;
  case Expression::comparison:
    return comparison(term, context);
  default:
    return boolean_call(term, context);
  }
}

double axsXPathEvaluator::fresh_number(Term const& term, Context const& context)
{
  switch (term.kind)
  {
  case Expression::constant:
    return term.number;
  case Expression::arithmetic:
    return arithmetic(term, context);
  case Expression::negation:
    return -number_of(operand(term, 0), context);
  case Expression::double_negation:
    return number_of(operand(term, 0), context);
  default:
    return number_call(term, context);
  }
}

std::string_view axsXPathEvaluator::fresh_text(Term const& term, Context const& context, std::string& scratch)
{
  if (term.kind == Expression::literal)
    return parsed.literals[static_cast<std::size_t>(term.first)];
  return text_call(term, context, scratch);
}

void axsXPathEvaluator::fresh_nodes(Term const& term, Context const& context, Want want, Nodes& found)
{
  switch (term.kind)
  {
  case Expression::path:
    selector.select(parsed.paths[static_cast<std::size_t>(term.first)], context, want, found);
    return;
  case Expression::union_:
  {
    axsXPathLease part(selector);
    for (int i = 0; i < term.count; ++i)
    {
      part.nodes().clear();
      nodes_of(operand(term, i), context, want, part.nodes());
      found.insert(found.end(), part.nodes().begin(), part.nodes().end());
    }
    selector.sort(found);
    return;
  }
  default:
    id_call(term, context, found);
  }
}

axsXPathValue const& axsXPathEvaluator::kept_value(int index, Context const& context)
{
  std::optional<axsXPathValue>& value = values[static_cast<std::size_t>(term_at(index).kept_value)].value;
  if (!value)
    value = fresh_value(index, context);
  return *value;
}

axsXPathEvaluator::Nodes const& axsXPathEvaluator::kept_nodes(int index, Context const& context)
{
  Term const& term = term_at(index);
  KeptNodes& table = node_tables[static_cast<std::size_t>(term.kept_nodes)];
  KeptKey const key{(term.uses & Expression::uses_node) != 0 ? context.node : axsXPathNode(),
    (term.uses & Expression::uses_position) != 0 ? context.position : 0,
    (term.uses & Expression::uses_size) != 0 ? context.size : 0};
  auto const known = table.find(key);
  if (known != table.end())
    return known->second;

  Nodes found;
  fresh_nodes(term, context, Selector::all, found);
  found.shrink_to_fit();
  kept_count += found.size() + 1;
  if (kept_count > most_kept_nodes)
  {
    for (KeptNodes& each : node_tables)
      each.clear();
    kept_count = found.size() + 1;
  }
  return table.emplace(key, std::move(found)).first->second;
}

bool axsXPathEvaluator::visit_nodes(int index, Context const& context, axsXPathVisitor visit)
{
  Term const& term = term_at(index);
  if (term.kind == Expression::path && term.kept_value < 0 && term.kept_nodes < 0)
    return selector.visit(parsed.paths[static_cast<std::size_t>(term.first)], context, visit);
  axsXPathLease lease(selector);
  nodes_of(index, context, Selector::all, lease.nodes());
  for (axsXPathNode const node : lease.nodes())
    if (visit(node))
      return true;
  return false;
}

bool axsXPathEvaluator::has_nodes(int index, Context const& context)
{
  Term const& term = term_at(index);
  if (term.kept_value >= 0)
    return !kept_value(index, context).nodes.empty();
  if (term.kept_nodes >= 0)
    return !kept_nodes(index, context).empty();
  axsXPathLease lease(selector);
  fresh_nodes(term, context, Selector::any, lease.nodes());
  return !lease.nodes().empty();
}

axsXPathNode axsXPathEvaluator::first_node(int index, Context const& context)
{
  axsXPathLease lease(selector);
  nodes_of(index, context, Selector::first, lease.nodes());
  return lease.nodes().empty() ? axsXPathNode() : lease.nodes().front();
}

axsXPathNode axsXPathEvaluator::argument_node(Term const& term, Context const& context)
{
  return term.count == 0 ? context.node : first_node(operand(term, 0), context);
}

std::string_view axsXPathEvaluator::text_of_node(axsXPathNode node, std::string& scratch) const
{
  return node.is_none() ? std::string_view() : tree.string_value(node, scratch);
}

double axsXPathEvaluator::number_of_node(axsXPathNode node) const
{
  std::string scratch;
  return axsXPathNumber::from_text(text_of_node(node, scratch));
}

std::string_view axsXPathEvaluator::argument_text(Term const& term, Context const& context, std::string& scratch)
{
  return term.count == 0 ? text_of_node(context.node, scratch) : text_of(operand(term, 0), context, scratch);
}

bool axsXPathEvaluator::boolean_call(Term const& term, Context const& context)
{
  std::string first_scratch;
  std::string second_scratch;
  switch (term.function)
  {
  case Function::boolean:
    return boolean_of(operand(term, 0), context);
  case Function::not_:
    return !boolean_of(operand(term, 0), context);
  case Function::true_:
    return true;
  case Function::lang:
    return lang_call(term, context);
  case Function::starts_with:
  {
    std::string_view const text = text_of(operand(term, 0), context, first_scratch);
    std::string_view const start = text_of(operand(term, 1), context, second_scratch);
    return text.substr(0, start.size()) == start;
  }
  case Function::contains:
  {
    std::string_view const text = text_of(operand(term, 0), context, first_scratch);
    return text.find(text_of(operand(term, 1), context, second_scratch)) != std::string_view::npos;
  }
  default:
    return false;
  }
}

double axsXPathEvaluator::number_call(Term const& term, Context const& context)
{
  std::string scratch;
  switch (term.function)
  {
  case Function::last:
    return static_cast<double>(context.size);
  case Function::position:
    return static_cast<double>(context.position);
  case Function::count:
    return count_call(term, context);
  case Function::sum:
    return sum_call(term, context);
  case Function::string_length:
    return static_cast<double>(utUtf8::count(argument_text(term, context, scratch)));
  case Function::number:
    return term.count == 0 ? number_of_node(context.node) : number_of(operand(term, 0), context);
  case Function::floor:
    return std::floor(number_of(operand(term, 0), context));
  case Function::ceiling:
    return std::ceil(number_of(operand(term, 0), context));
  default:
    return axsXPathNumber::round(number_of(operand(term, 0), context));
  }
}

std::string_view axsXPathEvaluator::text_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string first_scratch;
  std::string second_scratch;
  std::string third_scratch;
  auto const text_at = [&](int index, std::string& room) { return text_of(operand(term, index), context, room); };
  switch (term.function)
  {
  case Function::local_name:
  case Function::namespace_uri:
  case Function::name:
  {
    axsXPathNode const node = argument_node(term, context);
    if (node.is_none())
      return {};
    if (term.function == Function::namespace_uri)
      return tree.namespace_uri(node);
    return term.function == Function::name ? tree.name(node) : tree.local_name(node);
  }
  case Function::string:
    return argument_text(term, context, scratch);
  case Function::concat:
    return concat_call(term, context, scratch);
  case Function::substring:
    return substring_call(term, context, scratch);
  case Function::substring_before:
  {
    std::string_view const text = text_at(0, scratch);
    std::size_t const found = text.find(text_at(1, second_scratch));
    return found == std::string_view::npos ? std::string_view() : text.substr(0, found);
  }
  case Function::substring_after:
  {
    std::string_view const text = text_at(0, scratch);
    std::string_view const wanted = text_at(1, second_scratch);
    std::size_t const found = text.find(wanted);
    return found == std::string_view::npos ? std::string_view() : text.substr(found + wanted.size());
  }
  case Function::normalize_space:
    scratch = axsXPathText::normalize_space(argument_text(term, context, first_scratch));
    return scratch;
  default:
  {
    std::string_view const text = text_at(0, first_scratch);
    std::string_view const from = text_at(1, second_scratch);
    scratch = axsXPathText::translate(text, from, text_at(2, third_scratch));
    return scratch;
  }
  }
}

std::string_view axsXPathEvaluator::concat_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string result;
  std::string part;
  for (int i = 0; i < term.count; ++i)
    result.append(text_of(operand(term, i), context, part));
  scratch = std::move(result);
  return scratch;
}

std::string_view axsXPathEvaluator::substring_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string_view const text = text_of(operand(term, 0), context, scratch);
  double const start = number_of(operand(term, 1), context);
  if (term.count == 2)
    return axsXPathText::substring(text, start);
  return axsXPathText::substring(text, start, number_of(operand(term, 2), context));
}

bool axsXPathEvaluator::lang_call(Term const& term, Context const& context)
{
  axsName const* const attribute = given.tree().names().find("xml:lang");
  axsXPathNode at = context.node;
  while (!at.is_none() && tree.kind(at) != axsXPathTree::element_kind)
    at = tree.parent(at);
  if (attribute == nullptr || at.is_none())
    return false;

  std::string scratch;
  std::string_view const wanted = text_of(operand(term, 0), context, scratch);
  std::string_view const language = tree.scopes().nearest_value(static_cast<axsElement&>(*at.node()), *attribute);
  bool const ends_a_tag = language.size() <= wanted.size() || language[wanted.size()] == '-';
  return language.data() != nullptr && ends_a_tag && equals_in_any_case(language.substr(0, wanted.size()), wanted);
}

double axsXPathEvaluator::count_call(Term const& term, Context const& context)
{
  axsXPathLease lease(selector);
  nodes_of(operand(term, 0), context, Selector::all, lease.nodes());
  return static_cast<double>(lease.nodes().size());
}

double axsXPathEvaluator::sum_call(Term const& term, Context const& context)
{
  axsXPathLease lease(selector);
  nodes_of(operand(term, 0), context, Selector::all, lease.nodes());
  double sum = 0;
  for (axsXPathNode const node : lease.nodes())
    sum += number_of_node(node);
  return sum;
}

void axsXPathEvaluator::id_call(Term const& term, Context const& context, Nodes& found)
{
  if (!ids)
    ids.emplace(tree.top());
  std::string scratch;
  int const argument = operand(term, 0);
  if (term_at(argument).type != Type::node_set)
    add_ids(text_of(argument, context, scratch), found);
  else
  {
    axsXPathLease lease(selector);
    nodes_of(argument, context, Selector::all, lease.nodes());
    for (axsXPathNode const node : lease.nodes())
      add_ids(tree.string_value(node, scratch), found);
  }
  selector.sort(found);
}

void axsXPathEvaluator::add_ids(std::string_view names, Nodes& found)
{
  for (std::size_t at = 0; at < names.size();)
  {
    std::size_t end = at;
    while (end < names.size() && !utXmlCharacter::is_space(names[end]))
      ++end;
    if (axsNode* const element = ids->find(names.substr(at, end - at)))
      found.push_back(element);
    at = end + 1;
  }
}

double axsXPathEvaluator::arithmetic(Term const& term, Context const& context)
{
  double result = number_of(operand(term, 0), context);
  for (int i = 1; i < term.count; ++i)
  {
    double const next = number_of(operand(term, i), context);
    switch (operator_before(term, i))
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

bool axsXPathEvaluator::comparison(Term const& term, Context const& context)
{
  bool result = compare(operator_before(term, 1), operand(term, 0), operand(term, 1), context);
  for (int i = 2; i < term.count; ++i)
    result = compare_boolean(operator_before(term, i), result, operand(term, i), context);
  return result;
}

bool axsXPathEvaluator::compare(Operator how, int left, int right, Context const& context)
{
  Type const left_type = term_at(left).type;
  Type const right_type = term_at(right).type;
  if (left_type == Type::node_set)
    return right_type == Type::node_set ? compare_node_sets(how, left, right, context)
                                        : compare_nodes(how, left, right, context);
  if (right_type == Type::node_set)
    return compare_nodes(mirrored(how), right, left, context);
  if (!is_equality(how))
    return holds(how, number_of(left, context), number_of(right, context));
  if (left_type == Type::boolean || right_type == Type::boolean)
    return compare_boolean(how, boolean_of(left, context), right, context);
  if (left_type == Type::number || right_type == Type::number)
    return holds(how, number_of(left, context), number_of(right, context));
  std::string left_scratch;
  std::string right_scratch;
  bool const is_same = text_of(left, context, left_scratch) == text_of(right, context, right_scratch);
  return is_same == (how == Expression::equal);
}

bool axsXPathEvaluator::compare_boolean(Operator how, bool left, int right, Context const& context)
{
  bool const as_booleans = is_equality(how) || term_at(right).type == Type::node_set;
  return holds(how, as_number(left), as_booleans ? as_number(boolean_of(right, context)) : number_of(right, context));
}

bool axsXPathEvaluator::compare_nodes(Operator how, int nodes, int other, Context const& context)
{
  Type const type = term_at(other).type;
  std::string node_scratch;
  if (type == Type::boolean)
    return holds(how, as_number(has_nodes(nodes, context)), as_number(boolean_of(other, context)));
  if (type == Type::number || !is_equality(how))
  {
    double const number = number_of(other, context);
    auto compares = [&](axsXPathNode node)
    { return holds(how, axsXPathNumber::from_text(tree.string_value(node, node_scratch)), number); };
    return visit_nodes(nodes, context, compares);
  }
  std::string other_scratch;
  std::string_view const text = text_of(other, context, other_scratch);
  if (how == Expression::equal && term_at(nodes).kept_value >= 0)
    return kept_texts(nodes, context).count(std::string(text)) != 0;
  auto compares = [&](axsXPathNode node)
  { return (tree.string_value(node, node_scratch) == text) == (how == Expression::equal); };
  return visit_nodes(nodes, context, compares);
}

bool axsXPathEvaluator::compare_node_sets(Operator how, int left, int right, Context const& context)
{
  if (how == Expression::equal)
    return share_text(left, right, context);
  if (how == Expression::not_equal)
    return differ_in_text(left, right, context);
  // Some pair compares if the extremes do; without a number they are NaN, which does not compare.
  Extremes const of_left = extremes_of(left, context);
  Extremes const of_right = extremes_of(right, context);
  bool const is_less = how == Expression::less || how == Expression::less_equal;
  return is_less ? holds(how, of_left.least, of_right.most) : holds(how, of_left.most, of_right.least);
}

bool axsXPathEvaluator::share_text(int left, int right, Context const& context)
{
  if (term_at(right).kept_value < 0)
    std::swap(left, right);
  Texts own_texts;
  if (term_at(right).kept_value < 0)
    gather_texts(right, context, own_texts);
  Texts const& texts = term_at(right).kept_value < 0 ? own_texts : kept_texts(right, context);
  std::string scratch;
  std::string wanted;
  auto compares = [&](axsXPathNode node)
  {
    wanted = tree.string_value(node, scratch);
    return texts.count(wanted) != 0;
  };
  return !texts.empty() && visit_nodes(left, context, compares);
}

void axsXPathEvaluator::gather_texts(int index, Context const& context, Texts& texts)
{
  std::string scratch;
  auto gather = [&](axsXPathNode node)
  {
    texts.emplace(tree.string_value(node, scratch));
    return false;
  };
  visit_nodes(index, context, gather);
}

axsXPathEvaluator::Texts const& axsXPathEvaluator::kept_texts(int index, Context const& context)
{
  std::optional<Texts>& texts = values[static_cast<std::size_t>(term_at(index).kept_value)].texts;
  if (!texts)
  {
    Texts gathered;
    gather_texts(index, context, gathered);
    texts = std::move(gathered);
  }
  return *texts;
}

axsXPathEvaluator::Extremes axsXPathEvaluator::extremes_of(int index, Context const& context)
{
  Term const& term = term_at(index);
  if (term.kept_value >= 0 && values[static_cast<std::size_t>(term.kept_value)].extremes)
    return *values[static_cast<std::size_t>(term.kept_value)].extremes;

  Extremes extremes;
  auto gather = [&](axsXPathNode node)
  {
    double const number = number_of_node(node);
    // Of a number and NaN, these give the number.
    extremes.least = std::fmin(extremes.least, number);
    extremes.most = std::fmax(extremes.most, number);
    return false;
  };
  visit_nodes(index, context, gather);
  if (term.kept_value >= 0)
    values[static_cast<std::size_t>(term.kept_value)].extremes = extremes;
  return extremes;
}

bool axsXPathEvaluator::differ_in_text(int left, int right, Context const& context)
{
  // Some pair differs unless all nodes of both sets have one and the same text.
  std::optional<std::string> text;
  std::string scratch;
  bool is_one_text = true;
  auto gather = [&](axsXPathNode node)
  {
    std::string_view const found = tree.string_value(node, scratch);
    if (!text)
      text = found;
    is_one_text = *text == found;
    return !is_one_text;
  };
  visit_nodes(left, context, gather);
  if (!text)
    return false;
  auto differs = [&](axsXPathNode node) { return !is_one_text || tree.string_value(node, scratch) != *text; };
  return visit_nodes(right, context, differs);
}

// NOLINTEND(misc-no-recursion)
