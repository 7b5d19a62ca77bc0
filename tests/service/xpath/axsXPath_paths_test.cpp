#include "Subject.h"

#include <gtest/gtest.h>

namespace
{
using subject::nodes;
using subject::value;

/// Abbreviations, node tests, predicates, and what is a name and what an operator.
class XPathPath : public testing::Test
{
protected:
  std::shared_ptr<axmDocument> const document = subject::load(
    "<r id='1' xmlns:p='urn:p'><a id='2'><b id='3'/><b id='4'>t</b><c id='5'/></a><a id='6'><b id='7'/></a>"
    "<p:a id='8' p:k='v'/><!--note--><?pi one?><?go two?>text</r>");

  std::string ask(std::string const& expression) { return nodes(*document, expression); }
};
}

TEST_F(XPathPath, slash_is_the_root)
{
  EXPECT_EQ(ask("/"), "/");
  EXPECT_EQ(nodes(*document->getDocumentElement(), "/"), "/");
  EXPECT_EQ(ask("/r"), "r#1");
  EXPECT_EQ(ask("/*/a"), "a#2 a#6");
}

TEST_F(XPathPath, two_slashes_are_all_levels)
{
  EXPECT_EQ(ask("//b"), "b#3 b#4 b#7");
  EXPECT_EQ(ask("/r//b"), "b#3 b#4 b#7");
  EXPECT_EQ(ask("//a//b"), "b#3 b#4 b#7");
  EXPECT_EQ(ask("//@p:k"), "@p:k=v");
  EXPECT_EQ(ask("//r"), "r#1");
  EXPECT_EQ(ask("//."), ask("/descendant-or-self::node()"));
}

TEST_F(XPathPath, two_slashes_and_a_position_count_below_each_parent)
{
  EXPECT_EQ(ask("//b[1]"), "b#3 b#7");
  EXPECT_EQ(ask("/descendant::b[1]"), "b#3");
  EXPECT_EQ(ask("//b[last()]"), "b#4 b#7");
  EXPECT_EQ(ask("//b[position()=2]"), "b#4");
}

TEST_F(XPathPath, one_dot_is_the_node)
{
  EXPECT_EQ(nodes(*document->getDocumentElement(), "."), "r#1");
  EXPECT_EQ(nodes(*document->getDocumentElement(), ".//c"), "c#5");
  EXPECT_EQ(ask("//a/./b/."), "b#3 b#4 b#7");
  EXPECT_EQ(ask("//b[.='t']"), "b#4");
}

TEST_F(XPathPath, two_dots_are_the_parent)
{
  EXPECT_EQ(ask("//c/.."), "a#2");
  EXPECT_EQ(ask("//c/../../@id"), "@id=1");
}

TEST_F(XPathPath, at_is_the_attribute_axis)
{
  EXPECT_EQ(ask("//c/@id"), "@id=5");
  EXPECT_EQ(ask("//p:a/@*"), "@id=8 @p:k=v");
  EXPECT_EQ(ask("//a[@id=6]"), "a#6");
}

TEST_F(XPathPath, no_axis_is_the_child_axis)
{
  EXPECT_EQ(ask("r/a/c"), "c#5");
  EXPECT_EQ(ask("child::r/child::a/child::c"), "c#5");
}

TEST_F(XPathPath, node_types_are_tested)
{
  EXPECT_EQ(ask("/r/node()"), "a#2 a#6 p:a#8 <!--note--> <?pi?> <?go?> 'text'");
  EXPECT_EQ(ask("//text()"), "'t' 'text'");
  EXPECT_EQ(ask("//comment()"), "<!--note-->");
  EXPECT_EQ(ask("//processing-instruction()"), "<?pi?> <?go?>");
  EXPECT_EQ(ask("//processing-instruction('go')"), "<?go?>");
  EXPECT_EQ(ask("//node()[not(self::*)]"), "'t' <!--note--> <?pi?> <?go?> 'text'");
}

TEST_F(XPathPath, names_are_tested_with_their_namespace)
{
  EXPECT_EQ(ask("//p:a"), "p:a#8");
  EXPECT_EQ(ask("//p:*"), "p:a#8");
  EXPECT_EQ(ask("//@p:*"), "@p:k=v");
  EXPECT_EQ(ask("//a"), "a#2 a#6");
  EXPECT_EQ(ask("//@k"), "");
  EXPECT_EQ(ask("//p:b"), "");
}

TEST_F(XPathPath, predicates_filter_one_after_the_other)
{
  EXPECT_EQ(ask("/r/*[2][self::a]"), "a#6");
  EXPECT_EQ(ask("/r/*[self::p:a][1]"), "p:a#8");
  EXPECT_EQ(ask("/r/a[b][2]"), "a#6");
  EXPECT_EQ(ask("/r/*[1.5]"), "");
  EXPECT_EQ(ask("/r/*[0]"), "");
  EXPECT_EQ(ask("/r/*['1']"), "a#2 a#6 p:a#8");
  EXPECT_EQ(ask("/r/a[count(c) + 1]"), "");
  EXPECT_EQ(ask("/r/a[3 - count(b)]"), "a#2 a#6");
  EXPECT_EQ(ask("/r/a[4 - count(b)]"), "");
}

TEST_F(XPathPath, filters_count_in_document_order)
{
  EXPECT_EQ(ask("(//b)[1]"), "b#3");
  EXPECT_EQ(ask("(//b)[last()]"), "b#7");
  EXPECT_EQ(ask("(//b)[position()>1][1]"), "b#4");
  EXPECT_EQ(ask("(//b|//c)[3]/@id"), "@id=5");
  EXPECT_EQ(ask("(//a)//b[1]"), "b#3 b#7");
  EXPECT_EQ(ask("((//a)[1]/b)[2]"), "b#4");
}

TEST_F(XPathPath, operator_names_are_names_where_an_operand_is_expected)
{
  auto const other = subject::load("<r><div>6</div><mod>4</mod><and/><or/><text>x</text><div-mod/></r>");
  EXPECT_EQ(nodes(*other, "/r/div"), "div");
  EXPECT_EQ(value(*other, "r/div div r/mod"), "number 1.5");
  EXPECT_EQ(value(*other, "r/div mod r/mod"), "number 2");
  EXPECT_EQ(value(*other, "r/and and r/or or r/and"), "boolean true");
  EXPECT_EQ(nodes(*other, "//and[../or]"), "and");
  EXPECT_EQ(nodes(*other, "//div-mod"), "div-mod");
  EXPECT_EQ(nodes(*other, "r/text[text()]"), "text");
  EXPECT_EQ(nodes(*other, "descendant::div"), "div");
  EXPECT_EQ(value(*other, "r/*[1]*r/*[2]"), "number 24");
}

TEST_F(XPathPath, white_space_may_stand_between_tokens)
{
  EXPECT_EQ(ask(" / r / a [ @ id = 6 ] / child :: b "), "b#7");
  EXPECT_EQ(ask("//processing-instruction ( 'go' )"), "<?go?>");
  EXPECT_EQ(value(" count \t ( \n //x\r) "), "number 0");
}

TEST_F(XPathPath, literals_have_either_quotes)
{
  EXPECT_EQ(value("\"it's\""), "string it's");
  EXPECT_EQ(value("'\"'"), "string \"");
  EXPECT_EQ(value("''"), "string ");
}

TEST_F(XPathPath, numbers_have_a_point_anywhere)
{
  EXPECT_EQ(value("1.50"), "number 1.5");
  EXPECT_EQ(value(".5"), "number 0.5");
  EXPECT_EQ(value("5."), "number 5");
  EXPECT_EQ(value("1.+.5"), "number 1.5");
}

TEST_F(XPathPath, names_may_have_any_letters)
{
  auto const other = subject::load("<r><\xC3\xA4.b-c_1/><\xD1\x84/></r>");
  EXPECT_EQ(nodes(*other, "//\xC3\xA4.b-c_1"), "\xC3\xA4.b-c_1");
  EXPECT_EQ(nodes(*other, "/r/\xD1\x84"), "\xD1\x84");
}
