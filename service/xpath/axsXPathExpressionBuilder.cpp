#include "axsXPathExpressionBuilder.h"

#include <algorithm>
#include <utility>

namespace
{
using Expression = axsXPathExpression;

bool is_any_node(Expression::Step const& step, axsXPathAxis axis) noexcept
{
  return step.axis == axis && step.test.kind == Expression::NodeTest::any_node && step.predicate_count == 0;
}

// The axis that leads where descendant-or-self::node() and then `axis` lead; `axis` itself where there is none.
axsXPathAxis after_descendants(axsXPathAxis axis) noexcept
{
  switch (axis)
  {
  case axsXPathAxis::child:
    return axsXPathAxis::descendant;
  case axsXPathAxis::self:
    return axsXPathAxis::descendant_or_self;
  default:
    return axis;
  }
}
}

axsXPathExpression axsXPathExpressionBuilder::take()
{
  choose_slots();
  return std::move(made);
}

int axsXPathExpressionBuilder::add_literal(std::string_view text)
{
  Expression::Term term;
  term.first = static_cast<int>(made.literals.size());
  made.literals.emplace_back(text);
  return add_term(term);
}

int axsXPathExpressionBuilder::add_constant(double number)
{
  Expression::Term term;
  term.kind = Expression::constant;
  term.type = axsXPathType::number;
  term.number = number;
  return add_term(term);
}

int axsXPathExpressionBuilder::add_variable(std::string_view name, axsXPathType type, std::size_t position)
{
  auto const known = std::find_if(made.variables.begin(), made.variables.end(),
    [name](Expression::Variable const& variable) { return variable.name == name; });
  Expression::Term term;
  term.kind = Expression::variable;
  term.type = type;
  term.first = static_cast<int>(known - made.variables.begin());
  if (known == made.variables.end())
    made.variables.push_back({std::string(name), type, position});
  return add_term(term);
}

int axsXPathExpressionBuilder::add_operation(
  Expression::Kind kind, axsXPathType type, std::vector<Expression::Operand> const& operands)
{
  Expression::Term term;
  term.kind = kind;
  term.type = type;
  return add_operands(term, operands);
}

int axsXPathExpressionBuilder::add_call(
  axsXPathFunction const& function, std::vector<Expression::Operand> const& arguments)
{
  Expression::Term term;
  term.kind = Expression::call;
  term.type = function.result;
  term.function = function.identity;
  term.uses = function.uses;
  if (arguments.empty() && function.defaults_to_node)
    term.uses |= Expression::uses_node;
  term.selects = term.type == axsXPathType::node_set;
  return add_operands(term, arguments);
}

int axsXPathExpressionBuilder::add_name(std::string_view prefix, std::string_view local, std::size_t position)
{
  made.names.push_back({std::string(prefix), std::string(local), position});
  return static_cast<int>(made.names.size()) - 1;
}

int axsXPathExpressionBuilder::add_predicates(std::vector<int> const& terms)
{
  auto const first = static_cast<int>(made.predicates.size());
  for (int const index : terms)
  {
    Expression::Term const& term = made.term(index);
    made.predicates.push_back({index, term.type == axsXPathType::number, term.kind == Expression::constant, term.uses});
  }
  return first;
}

int axsXPathExpressionBuilder::add_term(Expression::Term const& term)
{
  made.terms.push_back(term);
  made.terms.back().predicate_depth = predicate_depth;
  return static_cast<int>(made.terms.size()) - 1;
}

int axsXPathExpressionBuilder::add_operands(Expression::Term& term, std::vector<Expression::Operand> const& operands)
{
  for (Expression::Operand const& operand : operands)
  {
    Expression::Term const& part = made.term(operand.term);
    term.uses |= part.uses;
    term.selects |= part.selects;
    term.selects_in_predicate |= part.selects_in_predicate;
  }
  term.first = static_cast<int>(made.operands.size());
  term.count = static_cast<int>(operands.size());
  made.operands.insert(made.operands.end(), operands.begin(), operands.end());
  return add_term(term);
}

int axsXPathExpressionBuilder::add_path(Expression::Path path, std::vector<Expression::Step> const& steps)
{
  Expression::Term term;
  term.kind = Expression::path;
  term.type = axsXPathType::node_set;
  term.selects = true;
  if (path.start == Expression::Path::context)
    term.uses = Expression::uses_node;
  if (path.start == Expression::Path::term)
  {
    Expression::Term const& start = made.term(path.start_term);
    term.uses = start.uses;
    term.selects_in_predicate = start.selects_in_predicate;
  }
  describe_predicates(term, path.first_predicate, path.predicate_count);
  for (Expression::Step const& step : steps)
    describe_predicates(term, step.first_predicate, step.predicate_count);

  std::vector<Expression::Step> const kept = simplified(steps);
  path.first_step = static_cast<int>(made.steps.size());
  path.step_count = static_cast<int>(kept.size());
  made.steps.insert(made.steps.end(), kept.begin(), kept.end());
  term.first = static_cast<int>(made.paths.size());
  made.paths.push_back(path);
  return add_term(term);
}

std::vector<Expression::Step> axsXPathExpressionBuilder::simplified(std::vector<Expression::Step> const& steps)
{
  std::vector<Expression::Step> result;
  for (Expression::Step step : steps)
  {
    if (is_any_node(step, axsXPathAxis::self))
      continue;
    bool const follows_descendants = !result.empty() && is_any_node(result.back(), axsXPathAxis::descendant_or_self);
    // //x is one walk over all descendants, unless a predicate counts the x of each parent.
    axsXPathAxis const merged = after_descendants(step.axis);
    bool const leads_down = merged == axsXPathAxis::descendant || merged == axsXPathAxis::descendant_or_self;
    if (follows_descendants && leads_down && !step.is_positional)
    {
      step.axis = merged;
      result.back() = step;
      continue;
    }
    // Only elements have attributes.
    if (follows_descendants && step.axis == axsXPathAxis::attribute)
      result.back().test.kind = Expression::NodeTest::any_name;
    result.push_back(step);
  }
  return result;
}

void axsXPathExpressionBuilder::describe_predicates(Expression::Term& term, int first, int count) const
{
  for (int i = first; i < first + count; ++i)
  {
    term.selects_in_predicate |= made.term(made.predicate(i).term).selects;
  }
}

void axsXPathExpressionBuilder::choose_slots()
{
  for (Expression::Predicate const& predicate : made.predicates)
    choose_slots(predicate.term);
}

void axsXPathExpressionBuilder::choose_slots(int index)
{
  Expression::Term& term = made.terms[static_cast<std::size_t>(index)];
  if (!term.selects)
    return;
  if (term.uses == Expression::uses_nothing)
  {
    term.value_slot = made.value_slots++;
    return;
  }
  if (term.type == axsXPathType::node_set && term.predicate_depth >= 2 && term.selects_in_predicate)
  {
    term.nodes_slot = made.node_set_slots++;
    return;
  }
  if (term.kind == Expression::path)
  {
    Expression::Path const& path = made.path_of(term);
    if (path.start == Expression::Path::term)
      choose_slots(path.start_term);
    return;
  }
  for (int i = term.first; i < term.first + term.count; ++i)
    choose_slots(made.operands[static_cast<std::size_t>(i)].term);
}
