#pragma once

#include "axsXPathExpression.h"
#include "axsXPathFunction.h"

#include <string_view>
#include <vector>

/// Puts a compiled expression together, operands before what uses them: notes for each term what of the context it depends
/// on, simplifies paths, and chooses which values are cached. One object makes one expression; throws std::bad_alloc when
/// memory runs out.
class axsXPathExpressionBuilder
{
public:
  using Expression = axsXPathExpression;

  // All that add a term return its index.
  int add_literal(std::string_view text);
  int add_constant(double number);
  int add_variable(std::string_view name, axsXPathType type, std::size_t position);
  int add_operation(Expression::Kind kind, axsXPathType type, std::vector<Expression::Operand> const& operands);
  int add_call(axsXPathFunction const& function, std::vector<Expression::Operand> const& arguments);
  int add_path(Expression::Path path, std::vector<Expression::Step> const& steps);

  /// The index of a name that stands at `position` in the text.
  int add_name(std::string_view prefix, std::string_view local, std::size_t position);

  /// The index of the first of the predicates with these terms, which follow each other.
  int add_predicates(std::vector<int> const& terms);

  // A predicate begins and ends: terms added meanwhile lie in it.
  void open_predicate() noexcept { ++predicate_depth; }
  void close_predicate() noexcept { --predicate_depth; }

  Expression::Term const& term(int index) const noexcept { return made.term(index); }
  Expression::Predicate const& predicate(int index) const noexcept { return made.predicate(index); }

  /// The expression, whose last term is the whole.
  Expression take();

private:
  int add_term(Expression::Term const& term);
  int add_operands(Expression::Term& term, std::vector<Expression::Operand> const& operands);
  void describe_predicates(Expression::Term& term, int first, int count) const;
  static std::vector<Expression::Step> simplified(std::vector<Expression::Step> const& steps);
  void choose_slots();
  void choose_slots(int index);

  Expression made;
  int predicate_depth = 0;
};
