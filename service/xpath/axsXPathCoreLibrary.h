#pragma once

#include "axsXPathContext.h"
#include "axsXPathExpression.h"
#include "axsXPathIds.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class axsXPathEvaluator;

/// The functions of the core library (XPath 1.0, section 4), called for one evaluation; axsXPathFunction has their
/// signatures.
/// Belongs to its evaluation. Throws std::bad_alloc when memory runs out.
class axsXPathCoreLibrary
{
public:
  /// Takes the values of arguments from `values`.
  axsXPathCoreLibrary(axsXPathExpression const& calling, axsXPathEvaluator& values) noexcept;

  // The value of a term that is a call, by the type of the function. A text may be put together in `scratch`; nodes come
  // into a vector that is empty.
  bool boolean_call(axsXPathExpression::Term const& term, axsXPathContext const& context);
  double number_call(axsXPathExpression::Term const& term, axsXPathContext const& context);
  std::string_view text_call(
    axsXPathExpression::Term const& term, axsXPathContext const& context, std::string& scratch);
  void nodes_call(
    axsXPathExpression::Term const& term, axsXPathContext const& context, std::vector<axsXPathNode>& found);

private:
  using Context = axsXPathContext;
  using Nodes = std::vector<axsXPathNode>;
  using Term = axsXPathExpression::Term;

  // The argument of a function that takes the context node where it is called without one.
  axsXPathNode argument_node(Term const& term, Context const& context);
  std::string_view argument_text(Term const& term, Context const& context, std::string& scratch);

  std::string_view concat_call(Term const& term, Context const& context, std::string& scratch);
  std::string_view substring_call(Term const& term, Context const& context, std::string& scratch);
  bool lang_call(Term const& term, Context const& context);
  double count_call(Term const& term, Context const& context);
  double sum_call(Term const& term, Context const& context);
  void add_ids(std::string_view names, Nodes& found);

  axsXPathExpression const& expression;
  axsXPathEvaluator& evaluator;
  std::optional<axsXPathIds> ids;
};
