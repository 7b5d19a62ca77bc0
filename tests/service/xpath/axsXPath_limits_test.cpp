#include "Subject.h"

#include <gtest/gtest.h>

#include <axsXPath.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#if defined(__linux__)
#  include <pthread.h>
#  include <sys/resource.h>
#  include <unistd.h>

#  include <fstream>
#endif

namespace
{
using subject::load;
using subject::nodes;
using subject::value;

std::string repeated(std::string const& text, int times)
{
  std::string result;
  for (int i = 0; i < times; ++i)
    result += text;
  return result;
}

/// A chain of that many elements a below the document element, the last one with an attribute.
std::shared_ptr<axmDocument> deep_document(int levels)
{
  auto const document = subject::create("r");
  std::shared_ptr<axmNode> at = document->getDocumentElement();
  for (int i = 0; i < levels; ++i)
    at = at->appendChild(document->createElement(APSTRING("a")));
  std::dynamic_pointer_cast<axmElement>(at)->setAttribute(APSTRING("last"), APSTRING("1"));
  return document;
}
}

TEST(XPathLimits, parentheses_may_lie_99_deep_in_each_other_in_an_expression)
{
  EXPECT_EQ(value(repeated("(", 99) + "1" + repeated(")", 99)), "number 1");
  EXPECT_EQ(value(repeated("(", 100) + "1" + repeated(")", 100)),
    "error at 101: parentheses, brackets and calls lie too deep in each other");
  EXPECT_EQ(value(repeated("(", 1000000)), "error at 101: parentheses, brackets and calls lie too deep in each other");
}

TEST(XPathLimits, predicates_and_calls_count_as_parentheses_do)
{
  EXPECT_EQ(value(repeated("a[", 99) + "b" + repeated("]", 99)), "node-set ");
  EXPECT_EQ(value(repeated("a[", 100) + "b" + repeated("]", 100)),
    "error at 201: parentheses, brackets and calls lie too deep in each other");
  EXPECT_EQ(value(repeated("not(", 99) + "1" + repeated(")", 99)), "boolean false");
  EXPECT_EQ(value(repeated("not(", 100) + "1" + repeated(")", 100)),
    "error at 401: parentheses, brackets and calls lie too deep in each other");
}

TEST(XPathLimits, rows_of_operators_signs_steps_and_predicates_may_be_long)
{
  int const many = 100000;
  EXPECT_EQ(value("1" + repeated("+1", many)), "number 100001");
  EXPECT_EQ(value("1" + repeated("*1", many)), "number 1");
  EXPECT_EQ(value("0" + repeated(" or 0", many)), "boolean false");
  EXPECT_EQ(value("1" + repeated(" and 1", many)), "boolean true");
  EXPECT_EQ(value("1" + repeated("=1", many)), "boolean true");
  EXPECT_EQ(value("1" + repeated("<1", many)), "boolean true");
  EXPECT_EQ(value(repeated("-", many) + "1"), "number 1");
  EXPECT_EQ(value("/empty" + repeated("/..|/empty", many)), "node-set ");
  EXPECT_EQ(value("string-length(concat('a'" + repeated(",'a'", many) + "))"), "number 100001");
  auto const document = subject::create("r");
  EXPECT_EQ(nodes(*document, "/r" + repeated("/.", many)), "r");
  EXPECT_EQ(nodes(*document, "/r" + repeated("/../r", many)), "r");
  EXPECT_EQ(nodes(*document, "/r" + repeated("[1]", many)), "r");
}

TEST(XPathLimits, a_document_of_a_million_levels_is_searched_on_every_axis)
{
  auto const document = deep_document(1000000);
  EXPECT_EQ(value(*document, "count(//a)"), "number 1000000");
  EXPECT_EQ(nodes(*document, "//a[@last]/@last"), "@last=1");
  EXPECT_EQ(value(*document, "count(//a[@last]/ancestor::*)"), "number 1000000");
  EXPECT_EQ(value(*document, "count(//a/..)"), "number 1000000");
  EXPECT_EQ(value(*document, "count(//a/a)"), "number 999999");
  EXPECT_EQ(value(*document, "count(//a//a)"), "number 999999");
  EXPECT_EQ(value(*document, "count(//a/ancestor-or-self::a)"), "number 1000000");
  EXPECT_EQ(value(*document, "count(//a[@last]/following::*|//a/preceding::*|//a/following-sibling::*)"), "number 0");
  EXPECT_EQ(value(*document, "string-length(//a)"), "number 0");
  EXPECT_EQ(value(*document, "count(//a[1])"), "number 1000000");
}

TEST(XPathLimits, namespaces_are_found_in_a_deep_document)
{
  auto const document = deep_document(200000);
  document->getDocumentElement()->setAttribute(APSTRING("xmlns"), APSTRING("urn:d"));
  document->getDocumentElement()->setAttribute(APSTRING("xmlns:p"), APSTRING("urn:d"));
  EXPECT_EQ(value(*document, "count(//a)"), "number 0");
  EXPECT_EQ(value(*document, "count(//p:a)"), "number 200000");
  document->getDocumentElement()->setAttribute(APSTRING("xml:lang"), APSTRING("en"));
  EXPECT_EQ(value(*document, "count(//p:a[lang('en')])"), "number 200000");
}

TEST(XPathLimits, nested_predicates_take_no_exponential_time)
{
  auto const document = load("<a>" + repeated("<a><a/><a/>", 20) + repeated("</a>", 20) + "</a>");
  std::string const all = "number 61";
  EXPECT_EQ(value(*document, "count(//a[count(ancestor-or-self::a)>0])"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[..//a", 40) + repeated("]", 40) + ")"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[count(..//a", 40) + repeated(") > 0]", 40) + ")"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[../descendant::a", 40) + repeated("]", 40) + ")"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[(..//a|.)", 40) + repeated("]", 40) + ")"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[..//a[position() < 100]", 40) + repeated("]", 40) + ")"), all);
  EXPECT_EQ(value(*document, "count(//a" + repeated("[//a", 40) + repeated("]", 40) + ")"), all);
}

TEST(XPathLimits, rows_of_steps_take_no_exponential_time)
{
  auto const document = load("<a>" + repeated("<a><a/><a/>", 20) + repeated("</a>", 20) + "</a>");
  EXPECT_EQ(value(*document, "count(/a" + repeated("/a/..", 50) + ")"), "number 1");
  EXPECT_EQ(value(*document, "count(//a" + repeated("//a/..", 50) + ")"), "number 21");
  EXPECT_EQ(value(*document, "count(//a" + repeated("/preceding::a/following::a", 50) + ")"), "number 58");
}

TEST(XPathLimits, many_siblings_are_sorted_and_counted)
{
  auto const document = load("<r>" + repeated("<a x='1' y='2'/><b/>", 50000) + "</r>");
  EXPECT_EQ(value(*document, "count(//b|//a)"), "number 100000");
  EXPECT_EQ(value(*document, "count(//@y|//@x|//b)"), "number 150000");
  EXPECT_EQ(value(*document, "count(//a/following-sibling::b)"), "number 50000");
  EXPECT_EQ(value(*document, "count(//b/preceding-sibling::a)"), "number 50000");
  EXPECT_EQ(value(*document, "count(//a/..)"), "number 1");
  EXPECT_EQ(value(*document, "name((//b|//a)[2])"), "string b");
  EXPECT_EQ(value(*document, "count(//a[following-sibling::b])"), "number 50000");
}

TEST(XPathLimits, comparing_many_nodes_with_many_takes_no_quadratic_time)
{
  std::string text = "<r>";
  for (int i = 0; i < 50000; ++i)
  {
    std::string const number = std::to_string(i);
    text += "<a n='" + number + "'/><b n='" + number + "x'/>";
  }
  auto const document = load(text + "<b n='7'/></r>");
  EXPECT_EQ(value(*document, "count(//a[@n = //b/@n])"), "number 1");
  EXPECT_EQ(value(*document, "count(//a[//b/@n = string(@n)])"), "number 1");
  EXPECT_EQ(value(*document, "string(//a[not(@n < //a/@n)]/@n)"), "string 49999");
  EXPECT_EQ(value(*document, "string(//a[not(//a/@n < @n)]/@n)"), "string 0");
}

namespace
{
// What an evaluation within limits tells.
std::string told(axmNode& context, char const* expression, axsXPathLimits const& limits)
{
  axsXPath::Value value;
  value.number = -1;
  axsXPathError error;
  if (axsXPath::evaluate(context, apString(expression), {}, limits, value, error))
    return "done";
  EXPECT_EQ(value.number, -1);
  EXPECT_EQ(error.position, 1);
  return error.message;
}

axsXPathLimits limits_of(std::uint64_t steps)
{
  axsXPathLimits limits;
  limits.max_steps = steps;
  return limits;
}
}

TEST(XPathLimits, an_evaluation_ends_when_it_has_taken_as_many_steps_as_it_may)
{
  auto const document = subject::load("<r>" + repeated("<a b='1'>t<!--c--></a>", 1000) + "</r>");
  std::string const too_many = "the evaluation takes more steps than are allowed";
  for (char const* const expression :
    {"//a", "//a/@b", "//text()", "//a[. = 't']", "count(//node())", "//a/following::a", "//a[last()]/preceding::a",
      "//a/ancestor::r", "//a/namespace::*", "sum(//@b)", "string(/)", "//a|//a|//a|//a|//a|//a", "//a[. = //a]"})
  {
    EXPECT_EQ(told(*document, expression, limits_of(100)), too_many) << expression;
    EXPECT_EQ(told(*document, expression, limits_of(0)), too_many) << expression;
    EXPECT_EQ(told(*document, expression, axsXPathLimits()), "done") << expression;
  }
  EXPECT_EQ(told(*document, "1 + 1", limits_of(0)), "done");
  EXPECT_EQ(told(*document, "//a", limits_of(3100)), "done");

  // A power of the size of the document is too much for the limit that counts its nodes, once.
  EXPECT_EQ(told(*document, "//a[count(../a[. = following-sibling::a]) = 2]", limits_of(1000000)), too_many);
  EXPECT_EQ(told(*document, "count(//a[preceding-sibling::a[last()]])", limits_of(100000)), too_many);
}

TEST(XPathLimits, an_evaluation_is_stopped_by_another_thread)
{
  auto const document = subject::load("<r>" + repeated("<a b='1'/>", 2000) + "</r>");
  std::atomic<bool> stop{false};
  axsXPathLimits limits;
  limits.max_steps = ~std::uint64_t{0};
  limits.stop = &stop;
  EXPECT_EQ(told(*document, "count(//a)", limits), "done");
  // It would take more than a year.
  std::string message;
  std::thread working(
    [&]
    {
      message = told(*document,
        "//a[preceding-sibling::a[following-sibling::a[preceding-sibling::a[position() > last()]][position() > last()]]"
        "[position() > last()]][position() > last()]",
        limits);
    });
  stop = true;
  working.join();
  EXPECT_EQ(message, "the evaluation was stopped");
  EXPECT_EQ(told(*document, "count(//a)", limits), "the evaluation was stopped");
}

// Sanitizers and builds that are not optimised take more memory and stack than what is built for use.
#if defined(__linux__) && defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(XPathLimits, what_nests_as_deep_as_may_be_takes_less_than_128_kb_of_stack)
{
  auto const document = deep_document(120);
  std::vector<std::string> const expressions = {repeated("a[", 99) + "1" + repeated("]", 99),
    repeated("not(", 99) + "1" + repeated(")", 99), repeated("(", 99) + "1" + repeated(")", 99),
    repeated("//a[count(", 49) + "//a" + repeated(")>0]", 49),
    repeated("a[position()=last() and a[", 49) + "a" + repeated("]]", 49),
    repeated("concat('a',", 99) + "'b'" + repeated(")", 99), repeated("(//a)[", 49) + "a" + repeated("]", 49),
    repeated("(a|a[", 49) + "a" + repeated("])", 49), repeated("a=(", 99) + "1" + repeated(")", 99),
    repeated("1+2*-(", 99) + "1" + repeated(")", 99)};
  for (std::string const& expression : expressions)
  {
    struct Work
    {
      std::shared_ptr<axmDocument> document;
      std::string expression;
      std::string answer;
    } work{document, expression, {}};
    pthread_attr_t small;
    pthread_attr_init(&small);
    pthread_attr_setstacksize(&small, 128 * 1024);
    pthread_t thread{};
    auto const run = [](void* given) -> void*
    {
      auto* const to_do = static_cast<Work*>(given);
      to_do->answer = value(*to_do->document, to_do->expression);
      return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &small, run, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&small);
    EXPECT_EQ(work.answer.find("error"), std::string::npos) << work.answer;
    EXPECT_NE(work.answer, "");
  }
}

TEST(XPathLimits, a_union_of_many_terms_holds_each_node_once)
{
  auto const document = subject::load("<r>" + repeated("<a/>", 20000) + "</r>");
  std::string const expression = "count(" + repeated("r/a|", 999) + "r/a)";
  // With each node as often as it is selected, this would take 160 MB at least.
  rlimit before{};
  getrlimit(RLIMIT_AS, &before);
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  rlimit limited = before;
  limited.rlim_cur = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + (40u << 20);
  setrlimit(RLIMIT_AS, &limited);
  EXPECT_EQ(value(*document, expression), "number 20000");
  setrlimit(RLIMIT_AS, &before);
}
#endif
