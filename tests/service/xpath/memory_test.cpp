// Expressions when memory runs out.

#include "../../FailingMemory.h"
#include "Subject.h"

#include <axsCompiledXPath.h>
#include <axsXPath.h>

#include <gtest/gtest.h>

namespace
{
/// An expression too long to be kept by its document, so that compiling it anew is part of every call.
apString padded(char const* expression)
{
  return apString((expression + std::string(600, ' ')).c_str());
}
}

TEST(XPathMemory, an_evaluation_that_fails_leaks_nothing_and_leaves_the_value_as_it_was)
{
  auto const document = subject::load("<!DOCTYPE r [<!ATTLIST a k ID #IMPLIED>]><r xmlns:p='urn:p'><a k='i' x='1'>one"
                                      "<![CDATA[two]]></a><b><p:a>3</p:a><a/></b><!--c--></r>");
  for (char const* const expression :
    {"//a[@x='1']/text()", "//p:a|//a|//@*", "//a[position() < last()][..//a[..//a[. = //p:a]]]",
      "concat(name(//p:a), translate(//a, 'o', 'x'), 1 div 3)", "id('i')/namespace::*", "sum(//p:a) + count(//node())",
      "//node()/ancestor::*/following::node()/preceding-sibling::node()", "//a[1 ="})
  {
    apString const text = padded(expression);
    axsXPath::Value value;
    axsXPathError error;
    axsXPath::evaluate(*document, text, value, error);
    value = axsXPath::Value();

    auto const evaluate = [&]
    {
      axsXPath::Value found;
      axsXPathError told;
      axsXPath::evaluate(*document, text, found, told);
    };
    EXPECT_GT(fails_cleanly(evaluate), 3) << expression;
  }
}

TEST(XPathMemory, a_failed_evaluation_leaves_nothing_wrong_behind)
{
  auto const document = subject::load("<r><a/><b><a/></b></r>");
  apString const text(L"count(//b/preceding::a|//a[..//a[..//a]])");
  with_every_failure(
    [&]
    {
      try
      {
        axsXPath::Value found;
        axsXPathError told;
        axsXPath::evaluate(*document, text, found, told);
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    [&](bool, long) { EXPECT_EQ(subject::value(*document, "count(//b/preceding::a|//a)"), "number 2"); });
}

TEST(XPathMemory, a_compiled_expression_that_cannot_be_made_or_evaluated_leaks_nothing)
{
  auto const document = subject::load("<r xmlns='urn:a-namespace-of-some-length'><a>one</a></r>");
  axsXPathPrefixes const prefixes = {{"p", "urn:a-namespace-of-some-length"}};
  axsXPathVariables const variables = {{"name-of-some-length", std::string(100, 'x')}, {"n", 1}};
  auto const evaluate = [&]
  {
    axsCompiledXPath const made("//p:a[. != $name-of-some-length][$n]", prefixes, variables);
    axsXPath::Value found;
    axsXPathError told;
    made.evaluate(*document, {{"n", 2}}, found, told);
    axsCompiledXPath const wrong("//p:a[$name-of-another-length]", prefixes, variables);
    wrong.evaluate(*document, found, told);
  };
  evaluate();
  EXPECT_GT(fails_cleanly(evaluate), 10);
}
