#pragma once

#include "axsXPathAxis.h"
#include "axsXPathFunction.h"
#include "axsXPathType.h"

#include <cstddef>
#include <string>
#include <vector>

/// A compiled XPath expression: terms that name each other by their index, of which the last one is the whole.
///
/// Depends on no document: names stand in it as text and are bound when it is evaluated. Made by axsXPathParser and not
/// changed afterwards; several threads may evaluate one object.
class axsXPathExpression
{
public:
  /// What of the context a value depends on.
  enum Uses : unsigned
  {
    uses_nothing = 0,
    uses_node = 1,
    uses_position = 2,
    uses_size = 4
  };

  enum Operator
  {
    no_operator,
    equal,
    not_equal,
    less,
    less_equal,
    greater,
    greater_equal,
    add,
    subtract,
    multiply,
    divide,
    modulo
  };

  /// A row of operators of the same rank is one term with many operands, taken from left to right; so the depth of the
  /// terms is that of the parentheses, brackets and calls in the text.
  struct Operand
  {
    int term;
    /// The operator to the left of the operand.
    Operator before;
  };

  enum Kind
  {
    literal,
    constant,
    variable,
    call,
    or_,
    and_,
    comparison,
    arithmetic,
    negation,
    double_negation,
    union_,
    path
  };

  struct Term
  {
    Kind kind = literal;
    axsXPathType type = axsXPathType::string;
    unsigned uses = uses_nothing;
    double number = 0;
    axsXPathFunction::Id function = axsXPathFunction::last;
    /// The operands or arguments; of a literal `first` is its index in `literals`, of a variable that in `variables`, of a
    /// path that in `paths`.
    int first = 0;
    int count = 0;
    /// The number of predicates around the term.
    int predicate_depth = 0;
    /// Whether the term selects nodes, and whether a predicate inside it does.
    bool selects = false;
    bool selects_in_predicate = false;
    /// The slot of the evaluation's cache that the value has; negative where it is not cached. A term inside a predicate
    /// that depends on nothing has one value. A term that selects nodes, its predicates too, and lies in two predicates
    /// itself would otherwise be evaluated once for each way that leads to a context, and every further predicate around
    /// it multiplies the ways: it has one node-set a context.
    int value_slot = -1;
    int nodes_slot = -1;
  };

  struct NodeTest
  {
    enum Kind
    {
      any_node,
      text,
      comment,
      instruction,
      any_name,
      any_name_of_namespace,
      name
    };

    Kind kind = any_node;
    /// Index in `names`; of an instruction test without a target negative.
    int name_index = -1;
  };

  struct Name
  {
    std::string prefix;
    std::string local;
    /// Where the name stands in the expression, counted in bytes.
    std::size_t position;
  };

  struct Variable
  {
    std::string name;
    axsXPathType type;
    /// Where it stands first in the expression, counted in bytes.
    std::size_t position;
  };

  struct Predicate
  {
    int term;
    /// Whether the predicate asks for a position, and whether that is the constant number of its term.
    bool is_number;
    bool is_constant;
    unsigned uses;
  };

  struct Step
  {
    axsXPathAxis axis = axsXPathAxis::child;
    NodeTest test;
    int first_predicate = 0;
    int predicate_count = 0;
    /// Whether a predicate depends on the position among the nodes of the axis, and whether one on their number.
    bool is_positional = false;
    bool needs_size = false;
  };

  struct Path
  {
    enum Start
    {
      context,
      root,
      term
    };

    Start start = context;
    int start_term = -1;
    /// The predicates of a filter expression, applied to the nodes of the start term in document order.
    int first_predicate = 0;
    int predicate_count = 0;
    int first_step = 0;
    int step_count = 0;
  };

  int whole() const noexcept { return static_cast<int>(terms.size()) - 1; }

  // The parts that an index, or a term, names.
  Term const& term(int index) const noexcept { return terms[static_cast<std::size_t>(index)]; }
  Operand const& operand(Term const& of, int index) const noexcept
  {
    return operands[static_cast<std::size_t>(of.first) + static_cast<std::size_t>(index)];
  }
  std::string const& literal_of(Term const& of) const noexcept { return literals[static_cast<std::size_t>(of.first)]; }
  Path const& path_of(Term const& of) const noexcept { return paths[static_cast<std::size_t>(of.first)]; }
  Step const& step(Path const& of, int index) const noexcept
  {
    return steps[static_cast<std::size_t>(of.first_step) + static_cast<std::size_t>(index)];
  }
  Predicate const& predicate(int index) const noexcept { return predicates[static_cast<std::size_t>(index)]; }
  Name const* name_of(NodeTest const& test) const noexcept
  {
    return test.name_index < 0 ? nullptr : &names[static_cast<std::size_t>(test.name_index)];
  }

  std::vector<Term> terms;
  std::vector<Operand> operands;
  std::vector<Path> paths;
  std::vector<Step> steps;
  std::vector<Predicate> predicates;
  std::vector<std::string> literals;
  std::vector<Name> names;
  /// Those that the expression has, each once.
  std::vector<Variable> variables;
  int value_slots = 0;
  int node_set_slots = 0;
};
