#include "axsXPathParser.h"

#include "axsXPathNumber.h"

#include <utUtf8.h>

#include <algorithm>
#include <iterator>
#include <utility>

// Expressions are parsed and evaluated as deep as they lie in themselves, and axsXPathParser::nesting_limit bounds that.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Expression = axsXPathExpression;
using Token = axsXPathToken;

struct AxisName
{
  std::string_view text;
  axsXPathAxis axis;
};

AxisName const axes[] = {{"ancestor", axsXPathAxis::ancestor}, {"ancestor-or-self", axsXPathAxis::ancestor_or_self},
  {"attribute", axsXPathAxis::attribute}, {"child", axsXPathAxis::child}, {"descendant", axsXPathAxis::descendant},
  {"descendant-or-self", axsXPathAxis::descendant_or_self}, {"following", axsXPathAxis::following},
  {"following-sibling", axsXPathAxis::following_sibling}, {"namespace", axsXPathAxis::namespace_},
  {"parent", axsXPathAxis::parent}, {"preceding", axsXPathAxis::preceding},
  {"preceding-sibling", axsXPathAxis::preceding_sibling}, {"self", axsXPathAxis::self}};

bool is_any_node(Expression::Step const& step, axsXPathAxis axis) noexcept
{
  return step.axis == axis && step.test.kind == Expression::NodeTest::any_node && step.predicate_count == 0;
}

Expression::Step any_node(axsXPathAxis axis) noexcept
{
  Expression::Step step;
  step.axis = axis;
  return step;
}

/// The axis that leads where descendant-or-self::node() and then `axis` lead; `axis` itself where there is none.
axsXPathAxis behind_descendants(axsXPathAxis axis) noexcept
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

std::string quoted(std::string_view name)
{
  return "'" + std::string(name) + "'";
}

std::string count_of_arguments(axsXPathFunction const& function)
{
  std::string const least = std::to_string(function.least_arguments);
  if (function.most_arguments < 0)
    return least + " or more arguments";
  if (function.most_arguments > function.least_arguments)
    return least + " to " + std::to_string(function.most_arguments) + " arguments";
  return least + (function.most_arguments == 1 ? " argument" : " arguments");
}
}

axsXPathParser::OperatorToken const axsXPathParser::operators[] = {
  {Token::operator_or, rank_or, Expression::no_operator}, {Token::operator_and, rank_and, Expression::no_operator},
  {Token::equal, rank_equality, Expression::equal}, {Token::not_equal, rank_equality, Expression::not_equal},
  {Token::less, rank_relation, Expression::less}, {Token::less_equal, rank_relation, Expression::less_equal},
  {Token::greater, rank_relation, Expression::greater},
  {Token::greater_equal, rank_relation, Expression::greater_equal}, {Token::plus, rank_sum, Expression::add},
  {Token::minus, rank_sum, Expression::subtract}, {Token::operator_multiply, rank_product, Expression::multiply},
  {Token::operator_div, rank_product, Expression::divide}, {Token::operator_mod, rank_product, Expression::modulo}};

std::optional<axsXPathExpression> axsXPathParser::parse(std::string_view text, axsXPathError& error)
{
  error = axsXPathError();
  axsXPathParser parser(text, error);
  if (!parser.parse_whole())
    return std::nullopt;
  return std::move(parser.made);
}

axsXPathParser::axsXPathParser(std::string_view expression, axsXPathError& failure)
  : text(expression),
    error(failure),
    lexer(expression)
{
}

bool axsXPathParser::parse_whole()
{
  if (utUtf8::find_ill_formed(text) != std::string_view::npos)
    return fail(0, "the expression is not UTF-8") != failed;
  advance();
  if (parse_expression() == failed)
    return false;
  if (token.kind != Token::end)
    return fail_here("the expression should end here") != failed;
  choose_kept_values();
  return true;
}

int axsXPathParser::parse_expression()
{
  if (nesting == nesting_limit)
    return fail(token.position, "parentheses, brackets and calls lie too deep in each other");
  ++nesting;
  int const term = parse_rank(rank_or);
  --nesting;
  return term;
}

int axsXPathParser::parse_rank(Rank rank)
{
  if (rank == rank_unary)
    return parse_unary();
  auto const tighter = static_cast<Rank>(rank + 1);
  int const first = parse_rank(tighter);
  if (first == failed)
    return failed;

  std::vector<Expression::Operand> chain{{first, Expression::no_operator}};
  while (OperatorToken const* const taken = find_operator(rank))
  {
    advance();
    int const next = parse_rank(tighter);
    if (next == failed)
      return failed;
    chain.push_back({next, taken->meaning});
  }
  return chain.size() == 1 ? first : add_chain(rank, chain);
}

int axsXPathParser::parse_unary()
{
  bool has_sign = false;
  bool is_negative = false;
  for (; token.kind == Token::minus; advance())
  {
    has_sign = true;
    is_negative = !is_negative;
  }
  int const operand = parse_union();
  if (operand == failed || !has_sign)
    return operand;

  // Signs two by two cancel each other, but make a number of what stands behind them.
  Expression::Term term;
  term.kind = is_negative ? Expression::negation : Expression::double_negation;
  term.type = axsXPathType::number;
  return add_operands(term, {{operand, Expression::no_operator}});
}

int axsXPathParser::parse_union()
{
  char const* const problem = "what '|' joins has to be a node-set";
  std::size_t position = token.position;
  int const first = parse_path();
  if (first == failed || token.kind != Token::bar)
    return first;
  if (!require_nodes(first, position, problem))
    return failed;

  std::vector<Expression::Operand> parts{{first, Expression::no_operator}};
  while (token.kind == Token::bar)
  {
    advance();
    position = token.position;
    int const next = parse_path();
    if (next == failed || !require_nodes(next, position, problem))
      return failed;
    parts.push_back({next, Expression::no_operator});
  }
  Expression::Term term;
  term.kind = Expression::union_;
  term.type = axsXPathType::node_set;
  return add_operands(term, parts);
}

int axsXPathParser::parse_path()
{
  if (token.kind == Token::slash || token.kind == Token::double_slash)
    return parse_absolute_path();
  if (starts_primary())
    return parse_filter_path();
  std::vector<Expression::Step> steps;
  if (!parse_steps(steps))
    return failed;
  return add_path({}, steps);
}

int axsXPathParser::parse_absolute_path()
{
  Expression::Path path;
  path.start = Expression::Path::root;
  std::vector<Expression::Step> steps;
  bool const has_steps = token.kind == Token::double_slash;
  if (has_steps)
    steps.push_back(any_node(axsXPathAxis::descendant_or_self));
  advance();
  if ((has_steps || starts_step()) && !parse_steps(steps))
    return failed;
  return add_path(path, steps);
}

int axsXPathParser::parse_filter_path()
{
  std::size_t const position = token.position;
  int const primary = parse_primary();
  if (primary == failed)
    return failed;
  bool const has_steps = token.kind == Token::slash || token.kind == Token::double_slash;
  if (!has_steps && token.kind != Token::left_bracket)
    return primary;
  if (!require_nodes(primary, position, "only a node-set can be filtered or walked on from"))
    return failed;

  Expression::Path path;
  path.start = Expression::Path::term;
  path.start_term = primary;
  std::vector<Expression::Step> steps;
  if (!parse_predicates(path.first_predicate, path.predicate_count))
    return failed;
  if (token.kind == Token::double_slash)
    steps.push_back(any_node(axsXPathAxis::descendant_or_self));
  if (token.kind == Token::slash || token.kind == Token::double_slash)
  {
    advance();
    if (!parse_steps(steps))
      return failed;
  }
  return add_path(path, steps);
}

int axsXPathParser::parse_primary()
{
  Expression::Term term;
  switch (token.kind)
  {
  case Token::left_parenthesis:
    return parse_parenthesised();
  case Token::function_name:
    return parse_call();
  case Token::literal:
    term.first = static_cast<int>(made.literals.size());
    made.literals.emplace_back(token.local);
    break;
  case Token::number:
    term.kind = Expression::constant;
    term.type = axsXPathType::number;
    term.number = axsXPathNumber::from_text(token.local);
    break;
  default:
    return fail(token.position, "there are no variables, so " + quoted(token.local) + " has no value");
  }
  advance();
  return add_term(term);
}

int axsXPathParser::parse_parenthesised()
{
  advance();
  int const term = parse_expression();
  if (term == failed || !expect(Token::right_parenthesis, "a ')' is missing"))
    return failed;
  return term;
}

int axsXPathParser::parse_call()
{
  std::size_t const position = token.position;
  Call call;
  call.function = token.prefix.empty() ? axsXPathFunction::find(token.local) : nullptr;
  if (call.function == nullptr)
  {
    std::string const prefix = token.prefix.empty() ? std::string() : std::string(token.prefix) + ":";
    return fail(position, "there is no function " + quoted(prefix + std::string(token.local)));
  }
  advance();
  advance();
  if (!parse_arguments(call) || !check_arguments(call, position))
    return failed;

  Expression::Term term;
  term.kind = Expression::call;
  term.type = call.function->result;
  term.function = call.function->identity;
  term.uses = call.function->uses;
  if (call.arguments.empty() && call.function->defaults_to_node)
    term.uses |= Expression::uses_node;
  term.selects = term.type == axsXPathType::node_set;
  return add_operands(term, call.arguments);
}

bool axsXPathParser::parse_arguments(Call& call)
{
  if (token.kind != Token::right_parenthesis)
  {
    for (;;)
    {
      call.positions.push_back(token.position);
      int const argument = parse_expression();
      if (argument == failed)
        return false;
      call.arguments.push_back({argument, Expression::no_operator});
      if (token.kind != Token::comma)
        break;
      advance();
    }
  }
  return expect(Token::right_parenthesis, "a ',' or ')' is missing");
}

bool axsXPathParser::check_arguments(Call const& call, std::size_t position)
{
  axsXPathFunction const& function = *call.function;
  auto const count = static_cast<int>(call.arguments.size());
  if (count < function.least_arguments || (function.most_arguments >= 0 && count > function.most_arguments))
  {
    std::string const name(function.text);
    return fail(position, name + "() takes " + count_of_arguments(function) + ", not " + std::to_string(count)) !=
           failed;
  }
  if (!function.takes_node_sets)
    return true;
  for (std::size_t i = 0; i < call.arguments.size(); ++i)
    if (!require_nodes(call.arguments[i].term, call.positions[i], "the argument has to be a node-set"))
      return false;
  return true;
}

bool axsXPathParser::parse_steps(std::vector<Expression::Step>& steps)
{
  for (;;)
  {
    if (!parse_step(steps.emplace_back()))
      return false;
    if (token.kind == Token::double_slash)
      steps.push_back(any_node(axsXPathAxis::descendant_or_self));
    else if (token.kind != Token::slash)
      return true;
    advance();
  }
}

bool axsXPathParser::parse_step(Expression::Step& step)
{
  if (token.kind == Token::dot || token.kind == Token::dot_dot)
  {
    step.axis = token.kind == Token::dot ? axsXPathAxis::self : axsXPathAxis::parent;
    advance();
    return true;
  }
  if (!parse_axis(step) || !parse_node_test(step.test) || !parse_predicates(step.first_predicate, step.predicate_count))
    return false;
  for (int i = 0; i < step.predicate_count; ++i)
  {
    Expression::Predicate const& predicate =
      made.predicates[static_cast<std::size_t>(step.first_predicate) + static_cast<std::size_t>(i)];
    step.is_positional |= predicate.is_number || (predicate.uses & ~Expression::uses_node) != 0;
    step.needs_size |= (predicate.uses & Expression::uses_size) != 0;
  }
  return true;
}

bool axsXPathParser::parse_axis(Expression::Step& step)
{
  if (token.kind == Token::at)
  {
    step.axis = axsXPathAxis::attribute;
    advance();
    return true;
  }
  if (token.kind != Token::axis_name)
    return true;
  auto const* const found =
    std::find_if(std::begin(axes), std::end(axes), [this](AxisName const& a) { return a.text == token.local; });
  if (found == std::end(axes))
    return fail(token.position, "there is no axis " + quoted(token.local)) != failed;
  step.axis = found->axis;
  advance();
  return true;
}

bool axsXPathParser::parse_node_test(Expression::NodeTest& test)
{
  if (token.kind == Token::node_type)
    return parse_node_type(test);
  if (token.kind != Token::name_test)
    return fail_here("a step is missing") != failed;
  if (token.local != "*")
    test.kind = Expression::NodeTest::name;
  else
    test.kind = token.prefix.empty() ? Expression::NodeTest::any_name : Expression::NodeTest::any_name_of_namespace;
  if (test.kind != Expression::NodeTest::any_name)
    test.name_index = add_name(token.prefix, token.local);
  advance();
  return true;
}

bool axsXPathParser::parse_node_type(Expression::NodeTest& test)
{
  bool const is_instruction = token.local == "processing-instruction";
  if (is_instruction)
    test.kind = Expression::NodeTest::instruction;
  else if (token.local == "text")
    test.kind = Expression::NodeTest::text;
  else if (token.local == "comment")
    test.kind = Expression::NodeTest::comment;
  advance();
  advance();
  if (is_instruction && token.kind == Token::literal)
  {
    test.name_index = add_name({}, token.local);
    advance();
  }
  return expect(Token::right_parenthesis, "a ')' is missing");
}

bool axsXPathParser::parse_predicates(int& first, int& count)
{
  // Kept aside until all are read, as the predicates inside them come first.
  std::vector<Expression::Predicate> predicates;
  while (token.kind == Token::left_bracket)
    if (!parse_predicate(predicates.emplace_back()))
      return false;
  first = static_cast<int>(made.predicates.size());
  count = static_cast<int>(predicates.size());
  made.predicates.insert(made.predicates.end(), predicates.begin(), predicates.end());
  return true;
}

bool axsXPathParser::parse_predicate(Expression::Predicate& predicate)
{
  advance();
  ++predicate_depth;
  predicate.term = parse_expression();
  --predicate_depth;
  if (predicate.term == failed || !expect(Token::right_bracket, "a ']' is missing"))
    return false;
  Expression::Term const& term = made.terms[static_cast<std::size_t>(predicate.term)];
  predicate.is_number = term.type == axsXPathType::number;
  predicate.is_constant = term.kind == Expression::constant;
  predicate.uses = term.uses;
  return true;
}

int axsXPathParser::add_term(Expression::Term const& term)
{
  made.terms.push_back(term);
  made.terms.back().predicate_depth = predicate_depth;
  return static_cast<int>(made.terms.size()) - 1;
}

int axsXPathParser::add_chain(Rank rank, std::vector<Expression::Operand> const& chain)
{
  Expression::Term term;
  term.type = axsXPathType::boolean;
  switch (rank)
  {
  case rank_or:
    term.kind = Expression::or_;
    break;
  case rank_and:
    term.kind = Expression::and_;
    break;
  case rank_equality:
  case rank_relation:
    term.kind = Expression::comparison;
    break;
  default:
    term.kind = Expression::arithmetic;
    term.type = axsXPathType::number;
  }
  return add_operands(term, chain);
}

int axsXPathParser::add_operands(Expression::Term& term, std::vector<Expression::Operand> const& operands)
{
  for (Expression::Operand const& operand : operands)
  {
    Expression::Term const& part = made.terms[static_cast<std::size_t>(operand.term)];
    term.uses |= part.uses;
    term.selects |= part.selects;
    term.selects_in_predicate |= part.selects_in_predicate;
  }
  term.first = static_cast<int>(made.operands.size());
  term.count = static_cast<int>(operands.size());
  made.operands.insert(made.operands.end(), operands.begin(), operands.end());
  return add_term(term);
}

int axsXPathParser::add_path(Expression::Path path, std::vector<Expression::Step> const& steps)
{
  Expression::Term term;
  term.kind = Expression::path;
  term.type = axsXPathType::node_set;
  term.selects = true;
  if (path.start == Expression::Path::context)
    term.uses = Expression::uses_node;
  if (path.start == Expression::Path::term)
  {
    Expression::Term const& start = made.terms[static_cast<std::size_t>(path.start_term)];
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

int axsXPathParser::add_name(std::string_view prefix, std::string_view local)
{
  made.names.push_back({std::string(prefix), std::string(local), token.position});
  return static_cast<int>(made.names.size()) - 1;
}

void axsXPathParser::describe_predicates(Expression::Term& term, int first, int count) const
{
  for (int i = first; i < first + count; ++i)
  {
    int const predicate = made.predicates[static_cast<std::size_t>(i)].term;
    term.selects_in_predicate |= made.terms[static_cast<std::size_t>(predicate)].selects;
  }
}

std::vector<Expression::Step> axsXPathParser::simplified(std::vector<Expression::Step> const& steps) const
{
  std::vector<Expression::Step> result;
  for (Expression::Step step : steps)
  {
    if (is_any_node(step, axsXPathAxis::self))
      continue;
    bool const follows_descendants = !result.empty() && is_any_node(result.back(), axsXPathAxis::descendant_or_self);
    // //x is one walk over all descendants, unless a predicate counts the x of each parent.
    axsXPathAxis const merged = behind_descendants(step.axis);
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

void axsXPathParser::choose_kept_values()
{
  for (Expression::Predicate const& predicate : made.predicates)
    choose_kept_values(predicate.term);
}

void axsXPathParser::choose_kept_values(int index)
{
  Expression::Term& term = made.terms[static_cast<std::size_t>(index)];
  if (!term.selects)
    return;
  if (term.uses == Expression::uses_nothing)
  {
    term.kept_value = made.kept_values++;
    return;
  }
  if (term.type == axsXPathType::node_set && term.predicate_depth >= 2 && term.selects_in_predicate)
  {
    term.kept_nodes = made.kept_node_tables++;
    return;
  }
  if (term.kind == Expression::path)
  {
    Expression::Path const& path = made.paths[static_cast<std::size_t>(term.first)];
    if (path.start == Expression::Path::term)
      choose_kept_values(path.start_term);
    return;
  }
  for (int i = term.first; i < term.first + term.count; ++i)
    choose_kept_values(made.operands[static_cast<std::size_t>(i)].term);
}

axsXPathParser::OperatorToken const* axsXPathParser::find_operator(Rank rank) const noexcept
{
  auto const* const found = std::find_if(std::begin(operators), std::end(operators),
    [&](OperatorToken const& candidate) { return candidate.rank == rank && candidate.token == token.kind; });
  return found == std::end(operators) ? nullptr : found;
}

bool axsXPathParser::starts_step() const noexcept
{
  switch (token.kind)
  {
  case Token::dot:
  case Token::dot_dot:
  case Token::at:
  case Token::axis_name:
  case Token::name_test:
  case Token::node_type:
    return true;
  default:
    return false;
  }
}

bool axsXPathParser::starts_primary() const noexcept
{
  switch (token.kind)
  {
  case Token::left_parenthesis:
  case Token::function_name:
  case Token::literal:
  case Token::number:
  case Token::variable:
    return true;
  default:
    return false;
  }
}

bool axsXPathParser::expect(Token::Kind kind, char const* problem)
{
  if (token.kind != kind)
    return fail_here(problem) != failed;
  advance();
  return true;
}

bool axsXPathParser::require_nodes(int term, std::size_t position, char const* problem)
{
  if (made.terms[static_cast<std::size_t>(term)].type == axsXPathType::node_set)
    return true;
  return fail(position, problem) != failed;
}

int axsXPathParser::fail(std::size_t position, std::string message)
{
  error.message = std::move(message);
  error.position = static_cast<int>(utUtf8::count(text.substr(0, position))) + 1;
  return failed;
}

int axsXPathParser::fail_here(char const* problem)
{
  // What is no token at all is told as such, wherever it stands.
  return fail(token.position, token.kind == Token::wrong ? token.problem : problem);
}

void axsXPathParser::advance() noexcept
{
  token = lexer.next();
}

// NOLINTEND(misc-no-recursion)
