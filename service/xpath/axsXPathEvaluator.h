#pragma once

#include "axsTextHash.h"
#include "axsXPathContext.h"
#include "axsXPathError.h"
#include "axsXPathExpression.h"
#include "axsXPathIds.h"
#include "axsXPathSelector.h"
#include "axsXPathTest.h"
#include "axsXPathTree.h"
#include "axsXPathValue.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// One evaluation of an expression (XPath 1.0).
///
/// What depends on nothing is evaluated once, and what selects nodes inside many predicates once a context: the time is
/// bounded by a power of the size of the document that does not grow with the expression. Recurses no deeper than the
/// expression lies in itself, which its parser bounds.
/// Belongs to one thread, which has the document for itself meanwhile. Throws std::bad_alloc when memory runs out.
class axsXPathEvaluator
{
public:
  using Context = axsXPathContext;
  using Nodes = axsXPathSelector::Nodes;
  using Want = axsXPathSelector::Want;

  /// With `context` as the context node. The expression has to outlive the evaluator.
  axsXPathEvaluator(axsXPathExpression const& expression, axsNode& context);

  /// Takes the prefixes of the expression from the scope of the context node. False, with the error filled but for its
  /// position, and that in bytes in `place`, where one is not declared or the context is no node of the data model.
  /// To be called first.
  bool bind(axsXPathError& error, std::size_t& place);

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

  /// The number that a term of that kind is.
  double constant(int term) const noexcept { return term_at(term).number; }

private:
  using Expression = axsXPathExpression;
  using Operator = axsXPathExpression::Operator;
  using Term = axsXPathExpression::Term;

  /// A context, without what the term does not depend on.
  struct KeptKey
  {
    axsXPathNode node;
    std::size_t position;
    std::size_t size;

    bool operator==(KeptKey const& other) const noexcept
    {
      return node == other.node && position == other.position && size == other.size;
    }
  };

  struct KeptHash
  {
    std::size_t operator()(KeptKey const& key) const noexcept
    {
      return axsXPathNode::Hash()(key.node) * 31 + key.position * 7 + key.size;
    }
  };

  using KeptNodes = std::unordered_map<KeptKey, Nodes, KeptHash>;

  using Texts = std::unordered_set<std::string, axsTextHash>;

  /// The least and the largest number of a node-set, NaN where there is none.
  struct Extremes
  {
    double least = std::numeric_limits<double>::quiet_NaN();
    double most = std::numeric_limits<double>::quiet_NaN();
  };

  /// The one value of a term, and of a node-set what comparing it with many others asks for again and again.
  struct KeptValue
  {
    std::optional<axsXPathValue> value;
    std::optional<Texts> texts;
    std::optional<Extremes> extremes;
  };

  bool bind_step(axsXPathExpression::Step const& step, axsElement const* scope, axsXPathTest& test);

  // The value of a term, whether it is kept or not, and as the type that the term has.
  axsXPathValue fresh_value(int term, Context const& context);
  bool fresh_boolean(Term const& term, Context const& context);
  double fresh_number(Term const& term, Context const& context);
  std::string_view fresh_text(Term const& term, Context const& context, std::string& scratch);
  void fresh_nodes(Term const& term, Context const& context, Want want, Nodes& found);
  axsXPathValue const& kept_value(int term, Context const& context);
  Nodes const& kept_nodes(int term, Context const& context);

  bool visit_nodes(int term, Context const& context, axsXPathVisitor visit);
  bool has_nodes(int term, Context const& context);
  axsXPathNode first_node(int term, Context const& context);
  axsXPathNode argument_node(Term const& term, Context const& context);
  std::string_view text_of_node(axsXPathNode node, std::string& scratch) const;
  double number_of_node(axsXPathNode node) const;
  std::string_view argument_text(Term const& term, Context const& context, std::string& scratch);

  bool boolean_call(Term const& term, Context const& context);
  double number_call(Term const& term, Context const& context);
  std::string_view text_call(Term const& term, Context const& context, std::string& scratch);
  std::string_view concat_call(Term const& term, Context const& context, std::string& scratch);
  std::string_view substring_call(Term const& term, Context const& context, std::string& scratch);
  bool lang_call(Term const& term, Context const& context);
  double count_call(Term const& term, Context const& context);
  double sum_call(Term const& term, Context const& context);
  void id_call(Term const& term, Context const& context, Nodes& found);
  void add_ids(std::string_view names, Nodes& found);

  double arithmetic(Term const& term, Context const& context);
  bool comparison(Term const& term, Context const& context);
  bool compare(Operator how, int left, int right, Context const& context);
  bool compare_boolean(Operator how, bool left, int right, Context const& context);
  bool compare_nodes(Operator how, int nodes, int other, Context const& context);
  bool compare_node_sets(Operator how, int left, int right, Context const& context);
  bool share_text(int left, int right, Context const& context);
  void gather_texts(int index, Context const& context, Texts& texts);
  Texts const& kept_texts(int index, Context const& context);
  Extremes extremes_of(int index, Context const& context);
  bool differ_in_text(int left, int right, Context const& context);

  Term const& term_at(int index) const noexcept { return parsed.terms[static_cast<std::size_t>(index)]; }
  int operand(Term const& term, int index) const noexcept
  {
    return parsed.operands[static_cast<std::size_t>(term.first) + static_cast<std::size_t>(index)].term;
  }
  Operator operator_before(Term const& term, int index) const noexcept
  {
    return parsed.operands[static_cast<std::size_t>(term.first) + static_cast<std::size_t>(index)].before;
  }

  Expression const& parsed;
  axsNode& given;
  axsXPathTree tree;
  // One for each step.
  std::vector<axsXPathTest> tests;
  axsXPathSelector selector;
  Context whole_context;
  std::optional<axsXPathIds> ids;
  std::vector<KeptValue> values;
  std::vector<KeptNodes> node_tables;
  std::size_t kept_count = 0;
};
