#include "axsXPathParser.h"

#include "axsXPathNumber.h"

#include <utUtf8.h>

#include <algorithm>
#include <iterator>
#include <utility>

// Recursion is as deep as the expression is nested, which axsXPathParser::nesting_limit bounds.
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

Expression::Step any_node(axsXPathAxis axis) noexcept
{
  Expression::Step step;
  step.axis = axis;
  return step;
}

std::string quoted(std::string_view name)
{
  return "'" + std::string(name) + "'";
}

std::string count_of_arguments(axsXPathFunction const& function)
{
  std::string const least = std::to_string(function.min_arguments);
  if (function.max_arguments < 0)
    return least + " or more arguments";
  if (function.max_arguments > function.min_arguments)
    return least + " to " + std::to_string(function.max_arguments) + " arguments";
  return least + (function.max_arguments == 1 ? " argument" : " arguments");
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

axsXPathExpression::Kind axsXPathParser::kind_of(Rank rank) noexcept
{
  switch (rank)
  {
  case rank_or:
    return Expression::or_;
  case rank_and:
    return Expression::and_;
  case rank_equality:
  case rank_relation:
    return Expression::comparison;
  default:
    return Expression::arithmetic;
  }
}

axsXPathType axsXPathParser::type_of(Rank rank) noexcept
{
  return kind_of(rank) == Expression::arithmetic ? axsXPathType::number : axsXPathType::boolean;
}

std::optional<axsXPathExpression> axsXPathParser::parse(
  std::string_view text, axsXPathVariables const& variables, axsXPathError& error)
{
  error = axsXPathError();
  axsXPathParser parser(text, variables, error);
  if (!parser.parse_whole())
    return std::nullopt;
  return parser.builder.take();
}

axsXPathParser::axsXPathParser(std::string_view expression, axsXPathVariables const& given, axsXPathError& failure)
  : text(expression),
    variables(given),
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
  return true;
}

int axsXPathParser::parse_expression()
{
  if (nesting == nesting_limit)
    return fail(token.position, "parentheses, brackets and calls lie too deep in each other");
  ++nesting;
  int const term = parse_operations();
  --nesting;
  return term;
}

// Operands and the operators between them, those that bind closer put together first. One function for all ranks, and no
// function for each: it is part of every level of nesting, and stacks of threads may be small.
int axsXPathParser::parse_operations()
{
  std::vector<OpenOperation> open;
  int operand = parse_unary();
  while (operand != failed)
  {
    OperatorToken const* const taken = find_operator();
    operand = close_tighter(open, operand, taken == nullptr ? nullptr : &taken->rank);
    if (taken == nullptr)
      return operand;
    if (open.empty() || open.back().rank != taken->rank)
      open.push_back({taken->rank, taken->meaning, {{operand, Expression::no_operator}}});
    else
    {
      open.back().chain.push_back({operand, open.back().last});
      open.back().last = taken->meaning;
    }
    advance();
    operand = parse_unary();
  }
  return failed;
}

// Ends the operations that bind closer than the rank or, if that is null, all; what they come to is an operand.
int axsXPathParser::close_tighter(std::vector<OpenOperation>& open, int operand, Rank const* rank)
{
  while (!open.empty() && (rank == nullptr || open.back().rank > *rank))
  {
    OpenOperation& ended = open.back();
    ended.chain.push_back({operand, ended.last});
    operand = builder.add_operation(kind_of(ended.rank), type_of(ended.rank), ended.chain);
    open.pop_back();
  }
  return operand;
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

  // Two signs cancel each other, but the operand is converted to a number all the same.
  return builder.add_operation(is_negative ? Expression::negation : Expression::double_negation, axsXPathType::number,
    {{operand, Expression::no_operator}});
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
  return builder.add_operation(Expression::union_, axsXPathType::node_set, parts);
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
  return builder.add_path({}, steps);
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
  return builder.add_path(path, steps);
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
  return builder.add_path(path, steps);
}

int axsXPathParser::parse_primary()
{
  switch (token.kind)
  {
  case Token::left_parenthesis:
    return parse_parenthesised();
  case Token::function_name:
    return parse_call();
  case Token::literal:
  {
    int const term = builder.add_literal(token.local);
    advance();
    return term;
  }
  case Token::number:
  {
    int const term = builder.add_constant(axsXPathNumber::from_text(token.local));
    advance();
    return term;
  }
  default:
    return parse_variable();
  }
}

int axsXPathParser::parse_variable()
{
  if (variables.empty())
    return fail(token.position, "there are no variables, so " + quoted(token.local) + " has no value");
  auto const given = token.prefix.empty() ? variables.find(std::string(token.local)) : variables.end();
  if (given == variables.end())
  {
    std::string const prefix = token.prefix.empty() ? std::string() : std::string(token.prefix) + ":";
    return fail(token.position, "the variable " + quoted(prefix + std::string(token.local)) + " has no value");
  }
  int const term = builder.add_variable(token.local, given->second.type, token.position);
  advance();
  return term;
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

  return builder.add_call(*call.function, call.arguments);
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
  if (count < function.min_arguments || (function.max_arguments >= 0 && count > function.max_arguments))
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
    Expression::Predicate const& predicate = builder.predicate(step.first_predicate + i);
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
    test.name_index = builder.add_name(token.prefix, token.local, token.position);
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
    test.name_index = builder.add_name({}, token.local, token.position);
    advance();
  }
  return expect(Token::right_parenthesis, "a ')' is missing");
}

bool axsXPathParser::parse_predicates(int& first, int& count)
{
  // Added when all are read, as the predicates inside them come first.
  std::vector<int> terms;
  while (token.kind == Token::left_bracket)
  {
    terms.push_back(parse_predicate());
    if (terms.back() == failed)
      return false;
  }
  first = builder.add_predicates(terms);
  count = static_cast<int>(terms.size());
  return true;
}

int axsXPathParser::parse_predicate()
{
  advance();
  builder.open_predicate();
  int const term = parse_expression();
  builder.close_predicate();
  return term != failed && expect(Token::right_bracket, "a ']' is missing") ? term : failed;
}

axsXPathParser::OperatorToken const* axsXPathParser::find_operator() const noexcept
{
  auto const* const found = std::find_if(std::begin(operators), std::end(operators),
    [&](OperatorToken const& candidate) { return candidate.token == token.kind; });
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
  if (builder.term(term).type == axsXPathType::node_set)
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
