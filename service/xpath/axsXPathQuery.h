#pragma once

#include "axsXPathError.h"
#include "axsXPathNode.h"
#include "axsXPathType.h"

#include <string>
#include <string_view>
#include <vector>

class axsNode;
class axsXPathCache;

/// Queries of the tree, from the text of an expression to what it gives; see axsXPath.
///
/// Nothing is kept beyond a call, and the nodes given are nodes of the tree, and not held: they are good until it changes.
/// All throw std::bad_alloc when memory runs out. One document belongs to one thread at a time.
class axsXPathQuery
{
public:
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
  static std::vector<axsXPathNode> select(
    axsXPathCache& cache, axsNode& context, std::string_view expression, axsXPathError& error);

  /// The first of them, null if there is none, without looking for the others where that can be spared.
  static axsNode* select_first(
    axsXPathCache& cache, axsNode& context, std::string_view expression, axsXPathError& error);

  /// The value of `expression`, whatever its type. False, with the reason in `error`, where it is wrong.
  static bool evaluate(
    axsXPathCache& cache, axsNode& context, std::string_view expression, Value& value, axsXPathError& error);
};
