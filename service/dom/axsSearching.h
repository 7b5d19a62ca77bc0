#pragma once

#include "axsCompiledXPath.h"

#include <axmNode.h>
#include <axmResult.h>
#include <axmSearching.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Compiled expressions for axm::select(): beside <axm.h>.
namespace axm
{
/// The value of `expression` for `context`, with those of its variables that are given here, or the reason why there is
/// none.
inline result<axsXPath::Value> evaluate(
  std::shared_ptr<axmNode> const& context, axsCompiledXPath const& expression, axsXPathVariables const& given = {})
{
  if (context == nullptr)
    return error{"there is no node to search from"};
  axsXPath::Value value;
  axsXPathError wrong;
  if (!expression.evaluate(*context, given, value, wrong))
    return error{wrong.message + ", at character " + std::to_string(wrong.position) + " of the expression"};
  return value;
}

/// The nodes that it selects, in document order; none of an expression that gives something else.
inline result<std::vector<std::shared_ptr<axmNode>>> select(
  std::shared_ptr<axmNode> const& context, axsCompiledXPath const& expression, axsXPathVariables const& given = {})
{
  result<axsXPath::Value> const value = evaluate(context, expression, given);
  if (!value)
    return value.error();
  return value->nodes;
}

/// The texts of what it selects, or its one other value, as T; those that are none are left out:
///
///     axsCompiledXPath const prices("//book[@year > $year]/@price", {}, {{"year", 2000}});
///     for (double const price : *axm::select<double>(document, prices, {{"year", 1990}}))
///       sum += price;
template <class T>
result<std::vector<T>> select(
  std::shared_ptr<axmNode> const& context, axsCompiledXPath const& expression, axsXPathVariables const& given = {})
{
  result<axsXPath::Value> const value = evaluate(context, expression, given);
  if (!value)
    return value.error();
  std::vector<T> values;
  auto const add = [&values](std::string const& text)
  {
    if (std::optional<T> one = value_of<T>(text))
      values.push_back(std::move(*one));
  };
  for (auto const& node : value->nodes)
    add(text_of_selected(*node));
  if (value->type != axsXPathType::node_set)
    add(utf8(value->text));
  return values;
}
}
