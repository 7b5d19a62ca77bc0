#include "axsXPathCoreLibrary.h"

#include "axsTree.h"
#include "axsXPathEvaluator.h"
#include "axsXPathNumber.h"
#include "axsXPathScratchNodes.h"
#include "axsXPathText.h"

#include <utUtf8.h>
#include <utXmlCharacter.h>

#include <algorithm>
#include <cmath>
#include <utility>

// Recursion is as deep as the expression is nested, which axsXPathParser::nesting_limit bounds.
// NOLINTBEGIN(misc-no-recursion)

namespace
{
using Function = axsXPathFunction;
using Type = axsXPathType;

char lower(char c) noexcept
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equals_in_any_case(std::string_view left, std::string_view right) noexcept
{
  return std::equal(
    left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) { return lower(a) == lower(b); });
}
}

axsXPathCoreLibrary::axsXPathCoreLibrary(axsXPathExpression const& calling, axsXPathEvaluator& values) noexcept
  : expression(calling),
    evaluator(values)
{
}

axsXPathNode axsXPathCoreLibrary::argument_node(Term const& term, Context const& context)
{
  return term.count == 0 ? context.node : evaluator.first_node(expression.operand(term, 0).term, context);
}

std::string_view axsXPathCoreLibrary::argument_text(Term const& term, Context const& context, std::string& scratch)
{
  return term.count == 0 ? evaluator.text_of_node(context.node, scratch)
                         : evaluator.text_of(expression.operand(term, 0).term, context, scratch);
}

bool axsXPathCoreLibrary::boolean_call(Term const& term, Context const& context)
{
  std::string first_scratch;
  std::string second_scratch;
  switch (term.function)
  {
  case Function::boolean:
    return evaluator.boolean_of(expression.operand(term, 0).term, context);
  case Function::not_:
    return !evaluator.boolean_of(expression.operand(term, 0).term, context);
  case Function::true_:
    return true;
  case Function::lang:
    return lang_call(term, context);
  case Function::starts_with:
  {
    std::string_view const text = evaluator.text_of(expression.operand(term, 0).term, context, first_scratch);
    std::string_view const start = evaluator.text_of(expression.operand(term, 1).term, context, second_scratch);
    return text.substr(0, start.size()) == start;
  }
  case Function::contains:
  {
    std::string_view const text = evaluator.text_of(expression.operand(term, 0).term, context, first_scratch);
    std::string_view const wanted = evaluator.text_of(expression.operand(term, 1).term, context, second_scratch);
    return axsXPathText::find(text, wanted) != std::string_view::npos;
  }
  default:
    return false;
  }
}

double axsXPathCoreLibrary::number_call(Term const& term, Context const& context)
{
  std::string scratch;
  switch (term.function)
  {
  case Function::last:
    return static_cast<double>(context.size);
  case Function::position:
    return static_cast<double>(context.position);
  case Function::count:
    return count_call(term, context);
  case Function::sum:
    return sum_call(term, context);
  case Function::string_length:
    return static_cast<double>(utUtf8::count(argument_text(term, context, scratch)));
  case Function::number:
    return term.count == 0 ? evaluator.number_of_node(context.node)
                           : evaluator.number_of(expression.operand(term, 0).term, context);
  case Function::floor:
    return std::floor(evaluator.number_of(expression.operand(term, 0).term, context));
  case Function::ceiling:
    return std::ceil(evaluator.number_of(expression.operand(term, 0).term, context));
  default:
    return axsXPathNumber::round(evaluator.number_of(expression.operand(term, 0).term, context));
  }
}

std::string_view axsXPathCoreLibrary::text_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string first_scratch;
  std::string second_scratch;
  std::string third_scratch;
  auto const text_at = [&](int index, std::string& room)
  { return evaluator.text_of(expression.operand(term, index).term, context, room); };
  switch (term.function)
  {
  case Function::local_name:
  case Function::namespace_uri:
  case Function::name:
  {
    axsXPathNode const node = argument_node(term, context);
    if (node.is_none())
      return {};
    if (term.function == Function::namespace_uri)
      return evaluator.model().namespace_uri(node);
    return term.function == Function::name ? evaluator.model().name(node) : evaluator.model().local_name(node);
  }
  case Function::string:
    return argument_text(term, context, scratch);
  case Function::concat:
    return concat_call(term, context, scratch);
  case Function::substring:
    return substring_call(term, context, scratch);
  case Function::substring_before:
  {
    std::string_view const text = text_at(0, scratch);
    std::size_t const found = axsXPathText::find(text, text_at(1, second_scratch));
    return found == std::string_view::npos ? std::string_view() : text.substr(0, found);
  }
  case Function::substring_after:
  {
    std::string_view const text = text_at(0, scratch);
    std::string_view const wanted = text_at(1, second_scratch);
    std::size_t const found = axsXPathText::find(text, wanted);
    return found == std::string_view::npos ? std::string_view() : text.substr(found + wanted.size());
  }
  case Function::normalize_space:
    scratch = axsXPathText::normalize_space(argument_text(term, context, first_scratch));
    return scratch;
  default:
  {
    std::string_view const text = text_at(0, first_scratch);
    std::string_view const from = text_at(1, second_scratch);
    scratch = axsXPathText::translate(text, from, text_at(2, third_scratch));
    return scratch;
  }
  }
}

std::string_view axsXPathCoreLibrary::concat_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string result;
  std::string part;
  for (int i = 0; i < term.count; ++i)
    result.append(evaluator.text_of(expression.operand(term, i).term, context, part));
  scratch = std::move(result);
  return scratch;
}

std::string_view axsXPathCoreLibrary::substring_call(Term const& term, Context const& context, std::string& scratch)
{
  std::string_view const text = evaluator.text_of(expression.operand(term, 0).term, context, scratch);
  double const start = evaluator.number_of(expression.operand(term, 1).term, context);
  if (term.count == 2)
    return axsXPathText::substring(text, start);
  return axsXPathText::substring(text, start, evaluator.number_of(expression.operand(term, 2).term, context));
}

bool axsXPathCoreLibrary::lang_call(Term const& term, Context const& context)
{
  axsName const* const attribute = evaluator.model().top().tree().names().find("xml:lang");
  axsXPathNode at = context.node;
  while (!at.is_none() && evaluator.model().kind(at) != axsXPathModel::element_kind)
    at = evaluator.model().parent(at);
  if (attribute == nullptr || at.is_none())
    return false;

  std::string scratch;
  std::string_view const wanted = evaluator.text_of(expression.operand(term, 0).term, context, scratch);
  std::string_view const language =
    evaluator.model().scopes().nearest_value(static_cast<axsElement&>(*at.node()), *attribute);
  bool const ends_a_tag = language.size() <= wanted.size() || language[wanted.size()] == '-';
  return language.data() != nullptr && ends_a_tag && equals_in_any_case(language.substr(0, wanted.size()), wanted);
}

double axsXPathCoreLibrary::count_call(Term const& term, Context const& context)
{
  axsXPathScratchNodes argument_nodes(evaluator.paths());
  evaluator.nodes_of(expression.operand(term, 0).term, context, axsXPathPathEvaluator::all, argument_nodes.nodes());
  return static_cast<double>(argument_nodes.nodes().size());
}

double axsXPathCoreLibrary::sum_call(Term const& term, Context const& context)
{
  axsXPathScratchNodes argument_nodes(evaluator.paths());
  evaluator.nodes_of(expression.operand(term, 0).term, context, axsXPathPathEvaluator::all, argument_nodes.nodes());
  double sum = 0;
  for (axsXPathNode const node : argument_nodes.nodes())
    sum += evaluator.number_of_node(node);
  return sum;
}

void axsXPathCoreLibrary::nodes_call(Term const& term, Context const& context, Nodes& found)
{
  if (!ids)
    ids.emplace(evaluator.model().top());
  std::string scratch;
  int const argument = expression.operand(term, 0).term;
  if (expression.term(argument).type != Type::node_set)
    add_ids(evaluator.text_of(argument, context, scratch), found);
  else
  {
    axsXPathScratchNodes argument_nodes(evaluator.paths());
    evaluator.nodes_of(argument, context, axsXPathPathEvaluator::all, argument_nodes.nodes());
    for (axsXPathNode const node : argument_nodes.nodes())
      add_ids(evaluator.text_of_node(node, scratch), found);
  }
  evaluator.paths().sort(found);
}

void axsXPathCoreLibrary::add_ids(std::string_view names, Nodes& found)
{
  for (std::size_t at = 0; at < names.size();)
  {
    std::size_t end = at;
    while (end < names.size() && !utXmlCharacter::is_space(names[end]))
      ++end;
    if (axsNode* const element = ids->find(names.substr(at, end - at)))
      found.push_back(element);
    at = end + 1;
  }
}

// NOLINTEND(misc-no-recursion)
