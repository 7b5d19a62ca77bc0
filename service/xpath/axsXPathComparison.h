#pragma once

#include "axsTextHash.h"
#include "axsXPathContext.h"
#include "axsXPathExpression.h"

#include <limits>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class axsXPathEvaluator;

/// The comparisons of one evaluation (XPath 1.0, section 3.4). A node-set compares as one of its nodes does; two node-sets
/// of m and n nodes are compared in O(m + n).
/// Belongs to its evaluation. Throws std::bad_alloc when memory runs out.
class axsXPathComparison
{
public:
  /// Takes the values of operands from `values`.
  axsXPathComparison(axsXPathExpression const& compared, axsXPathEvaluator& values);

  /// The value of a term that is a row of comparisons.
  bool compare(axsXPathExpression::Term const& term, axsXPathContext const& context);

private:
  using Context = axsXPathContext;
  using Expression = axsXPathExpression;
  using Operator = axsXPathExpression::Operator;
  using Term = axsXPathExpression::Term;

  using Texts = std::unordered_set<std::string, axsTextHash>;

  /// The smallest and the largest number of a node-set, NaN where there is none.
  struct Extremes
  {
    double min = std::numeric_limits<double>::quiet_NaN();
    double max = std::numeric_limits<double>::quiet_NaN();
  };

  bool compare(Operator how, int left, int right, Context const& context);
  bool compare_boolean(Operator how, bool left, int right, Context const& context);
  bool compare_nodes(Operator how, int nodes, int other, Context const& context);
  bool compare_node_sets(Operator how, int left, int right, Context const& context);
  bool share_text(int left, int right, Context const& context);
  bool differ_in_text(int left, int right, Context const& context);
  void gather_texts(int index, Context const& context, Texts& texts);
  Texts const& cached_texts(int index, Context const& context);
  Extremes extremes_of(int index, Context const& context);
  Extremes gather_extremes(int index, Context const& context);

  Expression const& expression;
  axsXPathEvaluator& evaluator;
  // Of node-sets that are cached, what comparing with many others asks for again and again.
  std::vector<std::optional<Texts>> text_slots;
  std::vector<std::optional<Extremes>> extreme_slots;
};
