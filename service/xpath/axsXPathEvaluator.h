#pragma once

#include "axsXPathComparison.h"
#include "axsXPathContext.h"
#include "axsXPathCoreLibrary.h"
#include "axsXPathError.h"
#include "axsXPathExpression.h"
#include "axsXPathModel.h"
#include "axsXPathNodeTest.h"
#include "axsXPathPathEvaluator.h"
#include "axsXPathPrefixes.h"
#include "axsXPathValue.h"
#include "axsXPathVariables.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// One evaluation of an expression (XPath 1.0): the values of its terms, each as the type that is asked for. Paths,
/// comparisons and function calls have classes of their own, which ask this one for the values of their operands.
///
/// What depends on nothing is evaluated once, and what selects nodes inside many predicates once a context: the time is
/// bounded by a power of the size of the document that does not grow with the expression. Recurses as deep as the
/// expression is nested, which its parser bounds.
/// Belongs to one thread; the document does not change meanwhile. Throws std::bad_alloc when memory runs out, and
/// axsXPathMeter::End where the limits end it.
class axsXPathEvaluator
{
public:
  using Context = axsXPathContext;
  using Nodes = axsXPathPathEvaluator::Nodes;
  using Want = axsXPathPathEvaluator::Want;

  /// With `context` as the context node. The expression has to outlive the evaluator.
  axsXPathEvaluator(axsXPathExpression const& evaluated, axsNode& context, axsXPathLimits const& limits);

  /// Takes the prefixes of the expression from `prefixes`, which must live as long, and those that are not there from the
  /// scope of the context node. False, with the error filled but for its position, and that in bytes in `place`, where one
  /// is not declared or the context is no node of the data model. To be called first.
  bool bind(axsXPathPrefixes const& prefixes, axsXPathError& error, std::size_t& place);

  /// Takes the values of the variables from `given` and, of those that are not there, from `usual`, which has all of them;
  /// both must live as long. False, with the error as above, where a value is not of the type that the expression was made for.
  /// To be called before the evaluation of an expression that has variables.
  bool bind(axsXPathVariables const& given, axsXPathVariables const& usual, axsXPathError& error, std::size_t& place);

  /// The value of the whole expression.
  axsXPathValue evaluate();

  /// A value of this evaluation as a string.
  std::string text_of_value(axsXPathValue const& value) const;

  /// What is wanted of the nodes of an expression that is a node-set.
  Nodes select(Want want);

  // Values of terms, each as the type that is asked for. A text may be put together in `scratch`; nodes come into a
  // vector that is empty.
  bool boolean_of(int term, Context const& context);
  double number_of(int term, Context const& context);
  std::string_view text_of(int term, Context const& context, std::string& scratch);
  void nodes_of(int term, Context const& context, Want want, Nodes& found);

  // Of terms that are node-sets: whether there is a node, the first one, and all of them shown in any order, perhaps some
  // repeatedly, until `visit` says to stop; visit_nodes() returns whether it did.
  bool has_nodes(int term, Context const& context);
  axsXPathNode first_node(int term, Context const& context);
  bool visit_nodes(int term, Context const& context, axsXPathVisitor visit);

  // The string-value of a node, empty of none, and its number.
  std::string_view text_of_node(axsXPathNode node, std::string& scratch) const
  {
    return node.is_none() ? std::string_view() : data_model.string_value(node, scratch);
  }
  double number_of_node(axsXPathNode node) const;

  axsXPathModel& model() noexcept { return data_model; }
  axsXPathPathEvaluator& paths() noexcept { return path_evaluator; }

private:
  using Expression = axsXPathExpression;
  using Term = axsXPathExpression::Term;

  /// A context, without what the term does not depend on.
  struct CacheKey
  {
    axsXPathNode node;
    std::size_t position;
    std::size_t size;

    bool operator==(CacheKey const& other) const noexcept
    {
      return node == other.node && position == other.position && size == other.size;
    }
  };

  struct CacheKeyHash
  {
    std::size_t operator()(CacheKey const& key) const noexcept
    {
      return axsXPathNode::Hash()(key.node) * 31 + key.position * 7 + key.size;
    }
  };

  using CachedNodes = std::unordered_map<CacheKey, Nodes, CacheKeyHash>;

  bool bind_step(
    Expression::Step const& step, axsXPathPrefixes const& prefixes, axsElement const* scope, axsXPathNodeTest& test);

  axsXPathVariable const& variable_of(Term const& term) const noexcept
  {
    return *variables[static_cast<std::size_t>(term.first)];
  }

  // The value of a term, without a look at the cache, as the type that the term has.
  axsXPathValue compute_value(int term, Context const& context);
  bool compute_boolean(Term const& term, Context const& context);
  double compute_number(Term const& term, Context const& context);
  std::string_view compute_text(Term const& term, Context const& context, std::string& scratch);
  void compute_nodes(Term const& term, Context const& context, Want want, Nodes& found);
  void compute_union(Term const& term, Context const& context, Want want, Nodes& found);
  double arithmetic(Term const& term, Context const& context);

  // The value of a term that has a slot for it.
  axsXPathValue const& cached_value(int term, Context const& context);
  Nodes const& cached_nodes(int term, Context const& context);

  Expression const& expression;
  axsNode& context_node;
  axsXPathMeter meter;
  axsXPathModel data_model;
  // One for each step.
  std::vector<axsXPathNodeTest> tests;
  // One for each variable.
  std::vector<axsXPathVariable const*> variables;
  axsXPathPathEvaluator path_evaluator;
  axsXPathComparison comparisons;
  axsXPathCoreLibrary core_library;
  Context initial_context;
  std::vector<std::optional<axsXPathValue>> values;
  std::vector<CachedNodes> node_sets;
  std::size_t cached_node_count = 0;
};
