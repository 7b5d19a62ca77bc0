#include "Document.h"

#include <axsSearching.h>

#include <string>
#include <vector>

namespace
{
axsXPathPrefixes const b = {{"b", "urn:b"}};

std::shared_ptr<axmDocument> books()
{
  return document_of(
    "<books xmlns='urn:b'><book year='1990'>old</book><book year='2010'>new</book><book year='?'/></books>");
}
}

TEST(axsSearching, selects_nodes_and_values_with_prefixes_and_variables)
{
  auto const document = books();
  axsCompiledXPath const later("//b:book[@year > $year]/@year", b, {{"year", 2000}});
  EXPECT_EQ(*axm::select<int>(document, later), (std::vector<int>{2010}));
  EXPECT_EQ(*axm::select<int>(document->getDocumentElement(), later, {{"year", 0}}), (std::vector<int>{1990, 2010}));
  EXPECT_EQ(
    *axm::select<std::string>(document, axsCompiledXPath("//b:book", b)), (std::vector<std::string>{"old", "new", ""}));
  auto const nodes = axm::select(document, later);
  ASSERT_TRUE(nodes);
  ASSERT_EQ(nodes->size(), 1u);
  EXPECT_EQ(axm::kind(*nodes->front()), axm::node_kind::attribute);
}

TEST(axsSearching, other_values_are_one)
{
  auto const document = books();
  EXPECT_EQ(*axm::select<int>(document, axsCompiledXPath("count(//b:book)", b)), (std::vector<int>{3}));
  EXPECT_EQ(*axm::select<bool>(document, axsCompiledXPath("1 = 1")), (std::vector<bool>{true}));
  EXPECT_EQ(*axm::select<std::string>(document, axsCompiledXPath("'a'")), (std::vector<std::string>{"a"}));
  EXPECT_TRUE(axm::select<int>(document, axsCompiledXPath("'a'"))->empty());
  EXPECT_TRUE(axm::select(document, axsCompiledXPath("1"))->empty());
}

TEST(axsSearching, what_is_wrong_is_told)
{
  auto const document = books();
  auto const wrong = axm::select<int>(document, axsCompiledXPath("//["));
  ASSERT_FALSE(wrong);
  EXPECT_EQ(wrong.error().message, "a step is missing, at character 3 of the expression");
  EXPECT_FALSE(axm::select(document, axsCompiledXPath("//b:book")));
  EXPECT_FALSE(axm::select(document, axsCompiledXPath("1"), {{"x", 1}}));
  EXPECT_EQ(axm::evaluate(nullptr, axsCompiledXPath("1")).error().message, "there is no node to search from");
}
