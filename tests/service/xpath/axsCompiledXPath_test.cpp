#include "Subject.h"

#include <axsCompiledXPath.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
std::shared_ptr<axmDocument> books()
{
  return subject::load("<books xmlns='urn:b'><book year='1990'>old</book><book year='2010'>new 'one'</book></books>");
}

axsXPathPrefixes const b = {{"b", "urn:b"}};

// What it gives: the type and the value as a string, or "error at P: M".
std::string value(axsCompiledXPath const& expression, axmNode& context, axsXPathVariables const& given = {})
{
  char const* const types[] = {"node-set", "boolean", "number", "string"};
  axsXPath::Value found;
  axsXPathError error;
  if (!expression.evaluate(context, given, found, error))
    return "error at " + std::to_string(error.position) + ": " + error.message;
  EXPECT_EQ(found.type, expression.type());
  return std::string(types[static_cast<int>(found.type)]) + " " + subject::utf8(found.text);
}
}

TEST(axsCompiledXPath, prefixes_are_the_callers)
{
  auto const document = books();
  EXPECT_EQ(value(axsCompiledXPath("count(//b:book)", b), *document), "number 2");
  EXPECT_EQ(
    value(axsCompiledXPath("//b:book"), *document), "error at 3: the prefix 'b' is not declared at the context node");
}

TEST(axsCompiledXPath, bytes_that_are_no_utf8_are_no_expression)
{
  axsCompiledXPath const wrong("//a[. = '\xC3']");
  EXPECT_FALSE(wrong.is_good());
  EXPECT_EQ(wrong.type(), axsXPathType::node_set);
  EXPECT_EQ(value(wrong, *books()), "error at 1: the expression is not UTF-8");
}

TEST(axsCompiledXPath, variables_have_the_values_of_the_evaluation_or_those_they_were_given_at_first)
{
  auto const document = books();
  axsCompiledXPath const later("//b:book[@year > $year]", b, {{"year", 2000}});
  EXPECT_EQ(value(later, *document), "node-set new 'one'");
  EXPECT_EQ(value(later, *document, {{"year", 1980}}), "node-set old");
  EXPECT_EQ(value(later, *document, {{"year", 2020.5}}), "node-set ");
  EXPECT_EQ(value(later, *document), "node-set new 'one'");
}

TEST(axsCompiledXPath, a_text_needs_no_quotes)
{
  auto const document = books();
  axsCompiledXPath const named("count(//b:book[. = $name])", b, {{"name", ""}});
  EXPECT_EQ(value(named, *document, {{"name", "new 'one'"}}), "number 1");
  EXPECT_EQ(value(named, *document, {{"name", std::string("\" or 1=1")}}), "number 0");
}

TEST(axsCompiledXPath, variables_are_of_each_type_and_convert_as_other_values_do)
{
  auto const document = books();
  axsXPathVariables const all = {{"t", true}, {"f", false}, {"n", 1}, {"s", "2"}, {"e", ""}};
  auto const of = [&](char const* expression) { return value(axsCompiledXPath(expression, b, all), *document); };
  EXPECT_EQ(of("$t"), "boolean true");
  EXPECT_EQ(of("$f"), "boolean false");
  EXPECT_EQ(of("$n"), "number 1");
  EXPECT_EQ(of("$s"), "string 2");
  EXPECT_EQ(of("not($e)"), "boolean true");
  EXPECT_EQ(of("$t and $n and $s"), "boolean true");
  EXPECT_EQ(of("$n + $s - $t"), "number 2");
  EXPECT_EQ(of("-$s"), "number -2");
  EXPECT_EQ(of("concat($t, $n, $s)"), "string true12");
  EXPECT_EQ(of("$n < $s"), "boolean true");
  EXPECT_EQ(of("$t = 'x'"), "boolean true");
  EXPECT_EQ(of("string(//b:book[$n])"), "string old");
  EXPECT_EQ(of("string(//b:book[$n + 1])"), "string new 'one'");
  EXPECT_EQ(of("count(//b:book[$s])"), "number 2");
  EXPECT_EQ(of("count(//b:book[$f])"), "number 0");
  EXPECT_EQ(of("substring('abc', $s)"), "string bc");
  EXPECT_EQ(of("$n*$s"), "number 2");
}

TEST(axsCompiledXPath, what_is_wrong_is_told_before_an_evaluation)
{
  axsCompiledXPath const good("1");
  EXPECT_TRUE(good.is_good());
  EXPECT_EQ(good.error().message, "");
  axsCompiledXPath const wrong("//[");
  EXPECT_FALSE(wrong.is_good());
  EXPECT_EQ(wrong.error().message, "a step is missing");
  EXPECT_EQ(wrong.error().position, 3);
  EXPECT_EQ(value(wrong, *books()), "error at 3: a step is missing");
  EXPECT_EQ(axsCompiledXPath("$x").error().message, "there are no variables, so 'x' has no value");
  EXPECT_EQ(axsCompiledXPath("1+$p:x", {}, {{"x", 1}}).error().message, "the variable 'p:x' has no value");
  EXPECT_EQ(axsCompiledXPath("1+$y", {}, {{"x", 1}}).error().position, 3);
  EXPECT_EQ(
    axsCompiledXPath("$x/a", {}, {{"x", "a"}}).error().message, "only a node-set can be filtered or walked on from");
  EXPECT_EQ(axsCompiledXPath("count($x)", {}, {{"x", "a"}}).error().message, "the argument has to be a node-set");
}

TEST(axsCompiledXPath, a_value_keeps_its_type_and_is_one_of_the_expressions)
{
  auto const document = books();
  axsCompiledXPath const later("'\xC3\xA4' = $name or 1 > $year", {}, {{"year", 2000}, {"name", "x"}});
  EXPECT_EQ(value(later, *document, {{"year", "1990"}}),
    "error at 20: the value of the variable 'year' is of another type than the expression was made for");
  EXPECT_EQ(
    value(later, *document, {{"years", 1990}}), "error at 1: the expression was made without a variable 'years'");
  EXPECT_EQ(value(axsCompiledXPath("2", {}, {{"unused", 1}}), *document, {{"unused", 2}}), "number 2");
}

TEST(axsCompiledXPath, it_is_evaluated_over_any_document_and_copied)
{
  axsCompiledXPath const count("count(//*)");
  axsCompiledXPath other("1");
  other = count;
  axsCompiledXPath const copy(other);
  EXPECT_EQ(value(copy, *subject::load("<a/>")), "number 1");
  EXPECT_EQ(value(copy, *subject::load("<a><b/></a>")->getDocumentElement()), "number 2");
}

TEST(axsCompiledXPath, limits_end_an_evaluation)
{
  axsXPathLimits limits;
  limits.max_steps = 0;
  axsXPath::Value found;
  axsXPathError error;
  EXPECT_FALSE(axsCompiledXPath("//*").evaluate(*books(), {}, limits, found, error));
  EXPECT_EQ(error.message, "the evaluation takes more steps than are allowed");
}
