#pragma once

#include "axsXPathError.h"
#include "axsXPathExpression.h"
#include "axsXPathExpressionBuilder.h"
#include "axsXPathLexer.h"
#include "axsXPathVariables.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Compiles the text of an XPath expression (XPath 1.0, section 3).
///
/// All that can be wrong with an expression is found here, but for prefixes, which belong to the context node: syntax,
/// functions that do not exist, the number and types of their arguments, variables that are not given, what has to be a
/// node-set and is none. One object compiles one expression, in one thread.
class axsXPathParser
{
public:
  /// How deep parentheses, brackets and calls may lie in each other; deeper ones are an error, as the stack is finite.
  static constexpr int nesting_limit = 100;

  /// The compiled form of `text`, UTF-8; none, with the reason in `error`, where it is not an expression.
  /// `variables` are those that it may have, and their types.
  static std::optional<axsXPathExpression> parse(
    std::string_view text, axsXPathVariables const& variables, axsXPathError& error);

private:
  using Expression = axsXPathExpression;

  /// How tightly the operators bind, the loosest first.
  enum Rank
  {
    rank_or,
    rank_and,
    rank_equality,
    rank_relation,
    rank_sum,
    rank_product
  };

  struct OperatorToken
  {
    axsXPathToken::Kind token;
    Rank rank;
    Expression::Operator meaning;
  };

  /// Operands of operators of one rank, and the operator after the last one.
  struct OpenOperation
  {
    Rank rank;
    Expression::Operator last;
    std::vector<Expression::Operand> chain;
  };

  struct Call
  {
    axsXPathFunction const* function;
    std::vector<Expression::Operand> arguments;
    /// Where each argument starts.
    std::vector<std::size_t> positions;
  };

  static constexpr int failed = -1;

  axsXPathParser(std::string_view expression, axsXPathVariables const& given, axsXPathError& failure);

  // Those that parse a term return its index, those that parse a part of one whether it is there; failed and false mean
  // that the error is told.
  bool parse_whole();
  int parse_expression();
  int parse_operations();
  int close_tighter(std::vector<OpenOperation>& open, int operand, Rank const* rank);
  int parse_unary();
  int parse_union();
  int parse_path();
  int parse_absolute_path();
  int parse_filter_path();
  int parse_primary();
  int parse_variable();
  int parse_parenthesised();
  int parse_call();
  bool parse_arguments(Call& call);
  bool check_arguments(Call const& call, std::size_t position);
  bool parse_steps(std::vector<Expression::Step>& steps);
  bool parse_step(Expression::Step& step);
  bool parse_axis(Expression::Step& step);
  bool parse_node_test(Expression::NodeTest& test);
  bool parse_node_type(Expression::NodeTest& test);
  bool parse_predicates(int& first, int& count);
  int parse_predicate();

  static Expression::Kind kind_of(Rank rank) noexcept;
  static axsXPathType type_of(Rank rank) noexcept;

  OperatorToken const* find_operator() const noexcept;
  bool starts_step() const noexcept;
  bool starts_primary() const noexcept;
  bool expect(axsXPathToken::Kind kind, char const* problem);
  bool require_nodes(int term, std::size_t position, char const* problem);
  int fail(std::size_t position, std::string message);
  int fail_here(char const* problem);
  void advance() noexcept;

  static OperatorToken const operators[];

  std::string_view text;
  axsXPathVariables const& variables;
  axsXPathError& error;
  axsXPathLexer lexer;
  axsXPathToken token;
  axsXPathExpressionBuilder builder;
  int nesting = 0;
};
