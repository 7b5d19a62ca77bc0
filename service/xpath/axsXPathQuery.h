#pragma once

#include "axsXPathError.h"
#include "axsXPathLimits.h"
#include "axsXPathNode.h"
#include "axsXPathPrefixes.h"
#include "axsXPathType.h"
#include "axsXPathVariables.h"

#include <string>
#include <string_view>
#include <vector>

class axsNode;
class axsXPathCache;
class axsXPathExpression;

/// Evaluates the text of an expression over a tree, by way of a cache of compiled expressions; see axsXPath.
///
/// The nodes in results are nodes of the tree that nobody holds yet: they are valid until it changes.
/// Where the limits end an evaluation, that is an error as well; those of select() are the usual ones.
/// All throw std::bad_alloc when memory runs out. One document belongs to one thread at a time.
namespace axsXPathQuery
{
/// The value of an expression, of which the member of its type counts.
struct Value
{
  axsXPathType type = axsXPathType::node_set;
  std::vector<axsXPathNode> nodes;
  bool boolean = false;
  double number = 0;
  /// The value as a string.
  std::string text;
};

/// The nodes that `expression`, UTF-8, selects, in document order, each once. Where it is wrong or does not give a
/// node-set, none, with the reason in `error`, which is without a message otherwise.
std::vector<axsXPathNode> select(
  axsXPathCache& cache, axsNode& context, std::string_view expression, axsXPathError& error);

/// The first of them, null if there is none, without looking for the others where that can be spared.
axsNode* select_first(axsXPathCache& cache, axsNode& context, std::string_view expression, axsXPathError& error);

/// The value of `expression`, whatever its type, with `prefixes` before those in scope. False, with the reason in `error`,
/// where it is wrong.
bool evaluate(axsXPathCache& cache, axsNode& context, std::string_view expression, axsXPathPrefixes const& prefixes,
  axsXPathLimits const& limits, Value& value, axsXPathError& error);

/// An expression that is compiled, and what it is evaluated with.
struct Compiled
{
  axsXPathExpression const& expression;
  /// What it was compiled from.
  std::string_view text;
  axsXPathPrefixes const& prefixes;
  /// The variables for which it was compiled, with the values that those have which are not given.
  axsXPathVariables const& variables;
};

/// The same of an expression that is compiled already.
bool evaluate(Compiled const& compiled, axsNode& context, axsXPathVariables const& variables,
  axsXPathLimits const& limits, Value& value, axsXPathError& error);
}
