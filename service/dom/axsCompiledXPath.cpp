#include "axsCompiledXPath.h"

#include "axsXPathAnswer.h"
#include "axsXPathExpression.h"
#include "axsXPathParser.h"
#include "axsXPathQuery.h"

#include <optional>

/// What the copies of one have in common.
struct axsXPathParts
{
  std::string const text;
  axsXPathPrefixes const prefixes;
  axsXPathVariables const variables;
  axsXPathError error = {};
  std::optional<axsXPathExpression> expression = {};
};

axsCompiledXPath::axsCompiledXPath(
  std::string_view expression, axsXPathPrefixes const& prefixes, axsXPathVariables const& variables)
{
  auto const made = std::make_shared<axsXPathParts>(axsXPathParts{std::string(expression), prefixes, variables});
  made->expression = axsXPathParser::parse(made->text, made->variables, made->error);
  parts = made;
}

axsCompiledXPath::axsCompiledXPath(axsCompiledXPath const&) = default;
axsCompiledXPath& axsCompiledXPath::operator=(axsCompiledXPath const&) = default;
axsCompiledXPath::~axsCompiledXPath() = default;

bool axsCompiledXPath::is_good() const noexcept
{
  return parts->expression.has_value();
}

axsXPathError const& axsCompiledXPath::error() const noexcept
{
  return parts->error;
}

axsXPathType axsCompiledXPath::type() const noexcept
{
  return is_good() ? parts->expression->term(parts->expression->whole()).type : axsXPathType::node_set;
}

bool axsCompiledXPath::evaluate(axmNode& context, axsXPath::Value& value, axsXPathError& error) const
{
  return evaluate(context, {}, value, error);
}

bool axsCompiledXPath::evaluate(
  axmNode& context, axsXPathVariables const& given, axsXPath::Value& value, axsXPathError& error) const
{
  return evaluate(context, given, axsXPathLimits(), value, error);
}

bool axsCompiledXPath::evaluate(axmNode& context, axsXPathVariables const& given, axsXPathLimits const& limits,
  axsXPath::Value& value, axsXPathError& error) const
{
  if (!is_good())
  {
    error = parts->error;
    return false;
  }
  for (auto const& [name, unused] : given)
    if (parts->variables.count(name) == 0)
    {
      error = {"the expression was made without a variable '" + name + "'", 1};
      return false;
    }
  axsXPathQuery::Compiled const compiled{*parts->expression, parts->text, parts->prefixes, parts->variables};
  return axsXPathAnswer::give(context, value, error,
    [&](axsNode& node, axsXPathQuery::Value& found)
    { return axsXPathQuery::evaluate(compiled, node, given, limits, found, error); });
}
