#include "axsXPathComparison.h"

#include "axsXPathEvaluator.h"
#include "axsXPathNumber.h"

#include <cmath>
#include <utility>

// Recursion is as deep as the expression is nested, which axsXPathParser::nesting_limit bounds.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Expression = axsXPathExpression;
using Type = axsXPathType;

double as_number(bool value) noexcept
{
  return value ? 1 : 0;
}

bool is_equality(Expression::Operator how) noexcept
{
  return how == Expression::equal || how == Expression::not_equal;
}

// The operator that says of (b, a) what `how` says of (a, b).
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
}

axsXPathComparison::axsXPathComparison(axsXPathExpression const& compared, axsXPathEvaluator& values)
  : expression(compared),
    evaluator(values),
    text_slots(static_cast<std::size_t>(expression.value_slots)),
    extreme_slots(static_cast<std::size_t>(expression.value_slots))
{
}

bool axsXPathComparison::compare(Term const& term, Context const& context)
{
  Expression::Operand const& second = expression.operand(term, 1);
  bool result = compare(second.before, expression.operand(term, 0).term, second.term, context);
  for (int i = 2; i < term.count; ++i)
  {
    Expression::Operand const& next = expression.operand(term, i);
    result = compare_boolean(next.before, result, next.term, context);
  }
  return result;
}

bool axsXPathComparison::compare(Operator how, int left, int right, Context const& context)
{
  Type const left_type = expression.term(left).type;
  Type const right_type = expression.term(right).type;
  if (left_type == Type::node_set)
    return right_type == Type::node_set ? compare_node_sets(how, left, right, context)
                                        : compare_nodes(how, left, right, context);
  if (right_type == Type::node_set)
    return compare_nodes(mirrored(how), right, left, context);
  if (!is_equality(how))
    return holds(how, evaluator.number_of(left, context), evaluator.number_of(right, context));
  if (left_type == Type::boolean || right_type == Type::boolean)
    return compare_boolean(how, evaluator.boolean_of(left, context), right, context);
  if (left_type == Type::number || right_type == Type::number)
    return holds(how, evaluator.number_of(left, context), evaluator.number_of(right, context));
  std::string left_scratch;
  std::string right_scratch;
  bool const is_same =
    evaluator.text_of(left, context, left_scratch) == evaluator.text_of(right, context, right_scratch);
  return is_same == (how == Expression::equal);
}

bool axsXPathComparison::compare_boolean(Operator how, bool left, int right, Context const& context)
{
  bool const as_booleans = is_equality(how) || expression.term(right).type == Type::node_set;
  return holds(how, as_number(left),
    as_booleans ? as_number(evaluator.boolean_of(right, context)) : evaluator.number_of(right, context));
}

bool axsXPathComparison::compare_nodes(Operator how, int nodes, int other, Context const& context)
{
  Type const type = expression.term(other).type;
  std::string node_scratch;
  if (type == Type::boolean)
    return holds(how, as_number(evaluator.has_nodes(nodes, context)), as_number(evaluator.boolean_of(other, context)));
  if (type == Type::number || !is_equality(how))
  {
    double const number = evaluator.number_of(other, context);
    auto compares = [&](axsXPathNode node)
    { return holds(how, axsXPathNumber::from_text(evaluator.text_of_node(node, node_scratch)), number); };
    return evaluator.visit_nodes(nodes, context, compares);
  }
  std::string other_scratch;
  std::string_view const text = evaluator.text_of(other, context, other_scratch);
  if (how == Expression::equal && expression.term(nodes).value_slot >= 0)
    return cached_texts(nodes, context).count(std::string(text)) != 0;
  auto compares = [&](axsXPathNode node)
  { return (evaluator.text_of_node(node, node_scratch) == text) == (how == Expression::equal); };
  return evaluator.visit_nodes(nodes, context, compares);
}

bool axsXPathComparison::compare_node_sets(Operator how, int left, int right, Context const& context)
{
  if (how == Expression::equal)
    return share_text(left, right, context);
  if (how == Expression::not_equal)
    return differ_in_text(left, right, context);
  // Some pair compares if the extremes do; without a number they are NaN, which does not compare.
  Extremes const of_left = extremes_of(left, context);
  Extremes const of_right = extremes_of(right, context);
  bool const is_less = how == Expression::less || how == Expression::less_equal;
  return is_less ? holds(how, of_left.min, of_right.max) : holds(how, of_left.max, of_right.min);
}

bool axsXPathComparison::share_text(int left, int right, Context const& context)
{
  if (expression.term(right).value_slot < 0)
    std::swap(left, right);
  Texts own_texts;
  if (expression.term(right).value_slot < 0)
    gather_texts(right, context, own_texts);
  Texts const& texts = expression.term(right).value_slot < 0 ? own_texts : cached_texts(right, context);
  std::string scratch;
  std::string wanted;
  auto compares = [&](axsXPathNode node)
  {
    wanted = evaluator.text_of_node(node, scratch);
    return texts.count(wanted) != 0;
  };
  return !texts.empty() && evaluator.visit_nodes(left, context, compares);
}

void axsXPathComparison::gather_texts(int index, Context const& context, Texts& texts)
{
  std::string scratch;
  auto gather = [&](axsXPathNode node)
  {
    texts.emplace(evaluator.text_of_node(node, scratch));
    return false;
  };
  evaluator.visit_nodes(index, context, gather);
}

axsXPathComparison::Texts const& axsXPathComparison::cached_texts(int index, Context const& context)
{
  std::optional<Texts>& texts = text_slots[static_cast<std::size_t>(expression.term(index).value_slot)];
  if (!texts)
  {
    Texts gathered;
    gather_texts(index, context, gathered);
    texts = std::move(gathered);
  }
  return *texts;
}

axsXPathComparison::Extremes axsXPathComparison::extremes_of(int index, Context const& context)
{
  int const slot = expression.term(index).value_slot;
  if (slot < 0)
    return gather_extremes(index, context);
  std::optional<Extremes>& extremes = extreme_slots[static_cast<std::size_t>(slot)];
  if (!extremes)
    extremes = gather_extremes(index, context);
  return *extremes;
}

axsXPathComparison::Extremes axsXPathComparison::gather_extremes(int index, Context const& context)
{
  Extremes extremes;
  auto gather = [&](axsXPathNode node)
  {
    double const number = evaluator.number_of_node(node);
    // Of a number and NaN, these give the number.
    extremes.min = std::fmin(extremes.min, number);
    extremes.max = std::fmax(extremes.max, number);
    return false;
  };
  evaluator.visit_nodes(index, context, gather);
  return extremes;
}

bool axsXPathComparison::differ_in_text(int left, int right, Context const& context)
{
  // Some pair differs unless all nodes of both sets have one and the same text.
  std::optional<std::string> text;
  std::string scratch;
  bool is_one_text = true;
  auto gather = [&](axsXPathNode node)
  {
    std::string_view const found = evaluator.text_of_node(node, scratch);
    if (!text)
      text = found;
    is_one_text = *text == found;
    return !is_one_text;
  };
  evaluator.visit_nodes(left, context, gather);
  if (!text)
    return false;
  auto differs = [&](axsXPathNode node) { return !is_one_text || evaluator.text_of_node(node, scratch) != *text; };
  return evaluator.visit_nodes(right, context, differs);
}

// NOLINTEND(misc-no-recursion)
