#include "Subject.h"

#include <axsXPath.h>

#include <gtest/gtest.h>

namespace
{
/// The operations of the node interface.
class XPathSelect : public testing::Test
{
protected:
  std::shared_ptr<axmDocument> const document =
    subject::load("<root><tag3><tag4>t</tag4></tag3><tag1 x='1'/><!--c--><tag1 x='2'/></root>");
  std::shared_ptr<axmElement> const root = document->getDocumentElement();

  static std::string shown(axmNodeList& list)
  {
    std::string text;
    while (auto const node = list.next_node())
      text += subject::utf8(node->getNodeName()) + " ";
    return text;
  }
};
}

TEST_F(XPathSelect, select_nodes_gives_a_list_in_document_order)
{
  EXPECT_EQ(shown(*root->selectNodes(APSTRING("//root/tag1|//tag4"))), "tag4 tag1 tag1 ");
  EXPECT_EQ(root->selectNodes(APSTRING("//tag3/tag4"))->at(0)->get_text(), APSTRING("t"));
}

TEST_F(XPathSelect, select_nodes_gives_an_empty_list_where_nothing_matches)
{
  auto const list = root->selectNodes(APSTRING("//root/bob"));
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->isEmpty());
}

TEST_F(XPathSelect, select_nodes_gives_an_empty_list_for_what_is_wrong_or_no_node_set)
{
  for (char const* const expression : {"", "//", "1 + 1", "count(//tag1)", "'a'", "foo()", "q:a"})
  {
    auto const list = root->selectNodes(apString(expression));
    ASSERT_NE(list, nullptr) << expression;
    EXPECT_EQ(list->length(), 0) << expression;
  }
}

TEST_F(XPathSelect, select_nodes_starts_at_the_element)
{
  auto const tag3 = root->selectNodes(APSTRING("tag3"))->at(0);
  EXPECT_EQ(shown(*tag3->selectNodes(APSTRING("tag4"))), "tag4 ");
  EXPECT_EQ(shown(*tag3->selectNodes(APSTRING("../tag1"))), "tag1 tag1 ");
  EXPECT_EQ(shown(*tag3->selectNodes(APSTRING("//tag1"))), "tag1 tag1 ");
}

TEST_F(XPathSelect, nodes_that_are_no_elements_come_too)
{
  EXPECT_EQ(shown(*root->selectNodes(APSTRING("//@x|//comment()|//text()"))), "#text x #comment x ");
}

TEST_F(XPathSelect, select_single_node_gives_the_first)
{
  auto const tag1 = root->selectSingleNode(APSTRING("//tag1"));
  ASSERT_NE(tag1, nullptr);
  EXPECT_TRUE(*tag1 == *root->selectNodes(APSTRING("//tag1"))->at(0));
  EXPECT_EQ(root->selectSingleNode(APSTRING("//tag1[2]/preceding-sibling::*"))->getNodeName(), APSTRING("tag3"));
  EXPECT_EQ(root->selectSingleNode(APSTRING("//@x"))->getNodeValue(), APSTRING("1"));
}

TEST_F(XPathSelect, select_single_node_gives_nothing_where_nothing_matches)
{
  EXPECT_EQ(root->selectSingleNode(APSTRING("//bob")), nullptr);
  EXPECT_EQ(root->selectSingleNode(APSTRING("//")), nullptr);
  EXPECT_EQ(root->selectSingleNode(APSTRING("1")), nullptr);
}

TEST_F(XPathSelect, select_single_node_passes_over_what_cannot_be_handed_out)
{
  auto const other = subject::load("<r xmlns:p='urn:p'/>");
  auto const found = other->getDocumentElement()->selectSingleNode(APSTRING("namespace::*"));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->getNodeName(), APSTRING("xmlns:p"));
}

TEST_F(XPathSelect, what_was_found_stays_when_the_document_goes)
{
  auto found = subject::load("<r><a>kept</a></r>")->getDocumentElement()->selectNodes(APSTRING("//a"));
  EXPECT_EQ(found->at(0)->get_text(), APSTRING("kept"));
}

TEST_F(XPathSelect, an_expression_that_is_right_leaves_no_error)
{
  axsXPath::Value value;
  axsXPathError error{"old", 7};
  EXPECT_TRUE(axsXPath::evaluate(*root, APSTRING("."), value, error));
  EXPECT_EQ(value.nodes.size(), 1u);
  EXPECT_TRUE(error.message.empty());
  EXPECT_EQ(error.position, 0);
}

TEST_F(XPathSelect, an_error_leaves_the_value_as_it_was)
{
  axsXPath::Value value;
  value.number = 7;
  axsXPathError error;
  EXPECT_FALSE(axsXPath::evaluate(*root, APSTRING("//["), value, error));
  EXPECT_EQ(value.number, 7);
  EXPECT_EQ(error.position, 3);
}

TEST(axsXPath, prefixes_that_are_given_name_what_is_in_a_default_namespace)
{
  auto const document = subject::load("<r xmlns='urn:a' xmlns:q='urn:b'><b id='1'/><q:b id='2'/></r>");
  axsXPath::Value value;
  axsXPathError error;
  auto const text = [&](char const* expression, axsXPathPrefixes const& prefixes)
  {
    bool const is_right = axsXPath::evaluate(*document, apString(expression), prefixes, value, error);
    return is_right ? std::string(value.text.to_utf8().c_str()) : error.message;
  };
  EXPECT_EQ(text("string(//p:b/@id)", {{"p", "urn:a"}}), "1");
  // What is given counts before what is in scope, and beside it.
  EXPECT_EQ(text("string(//q:b/@id)", {{"q", "urn:a"}}), "1");
  EXPECT_EQ(text("string(//q:b/@id)", {{"p", "urn:a"}}), "2");
  EXPECT_EQ(text("count(//xml:b)", {{"xml", "urn:a"}}), "0");
  EXPECT_EQ(text("//p:b", {{"p", ""}}), "the prefix 'p' is not declared at the context node");
  EXPECT_EQ(error.position, 3);
}
