#include "Subject.h"

#include <gtest/gtest.h>

namespace
{
using subject::nodes;

/// One document in which each axis of d leads somewhere else.
class XPathAxis : public testing::Test
{
protected:
  std::shared_ptr<axmDocument> const document = subject::load(
    "<!--before--><a id='1'><b id='2'><c id='3'/></b>one<d id='4' x='7' y='8'><e id='5'><f id='6'/></e>two<!--in--></d>"
    "<?go on?><g id='7'><h id='8'/></g></a>");

  std::string from_d(std::string const& path) { return nodes(*document, "//d/" + path); }
};
}

TEST_F(XPathAxis, ancestor_leads_to_the_parents_up_to_the_root)
{
  EXPECT_EQ(from_d("ancestor::node()"), "/ a#1");
  EXPECT_EQ(nodes(*document, "//f/ancestor::*"), "a#1 d#4 e#5");
}

TEST_F(XPathAxis, ancestor_or_self_adds_the_node)
{
  EXPECT_EQ(from_d("ancestor-or-self::*"), "a#1 d#4");
}

TEST_F(XPathAxis, attribute_leads_to_the_attributes)
{
  EXPECT_EQ(from_d("attribute::*"), "@id=4 @x=7 @y=8");
  EXPECT_EQ(from_d("attribute::x"), "@x=7");
  EXPECT_EQ(from_d("attribute::node()"), "@id=4 @x=7 @y=8");
  EXPECT_EQ(from_d("attribute::text()"), "");
}

TEST_F(XPathAxis, child_leads_to_the_children)
{
  EXPECT_EQ(from_d("child::node()"), "e#5 'two' <!--in-->");
  EXPECT_EQ(from_d("child::*"), "e#5");
}

TEST_F(XPathAxis, descendant_leads_to_all_below)
{
  EXPECT_EQ(from_d("descendant::node()"), "e#5 f#6 'two' <!--in-->");
}

TEST_F(XPathAxis, descendant_or_self_adds_the_node)
{
  EXPECT_EQ(from_d("descendant-or-self::*"), "d#4 e#5 f#6");
  EXPECT_EQ(nodes(*document, "//@x/descendant-or-self::node()"), "@x=7");
}

TEST_F(XPathAxis, following_leads_to_what_starts_after_the_end)
{
  EXPECT_EQ(from_d("following::node()"), "<?go?> g#7 h#8");
  EXPECT_EQ(nodes(*document, "//c/following::*"), "d#4 e#5 f#6 g#7 h#8");
}

TEST_F(XPathAxis, following_an_attribute_is_the_content_of_its_element_and_what_follows_that)
{
  EXPECT_EQ(from_d("@x/following::*"), "e#5 f#6 g#7 h#8");
}

TEST_F(XPathAxis, following_sibling_leads_to_the_later_children_of_the_parent)
{
  EXPECT_EQ(from_d("following-sibling::node()"), "<?go?> g#7");
  EXPECT_EQ(from_d("@x/following-sibling::node()"), "");
}

TEST_F(XPathAxis, namespace_leads_to_what_is_in_scope)
{
  auto const other = subject::load("<a xmlns:p='urn:p'><b xmlns='urn:d' xmlns:p='urn:q'/><c/></a>");
  EXPECT_EQ(nodes(*other, "/a/namespace::*"), "@xmlns:p=urn:p");
  EXPECT_EQ(nodes(*other, "/a/*[1]/namespace::*"), "@xmlns=urn:d @xmlns:p=urn:q");
  EXPECT_EQ(nodes(*other, "/a/*[1]/namespace::p"), "@xmlns:p=urn:q");
  EXPECT_EQ(subject::value(*other, "count(/a/namespace::*)"), "number 2");
  EXPECT_EQ(subject::value(*other, "string(/a/namespace::xml)"), "string http://www.w3.org/XML/1998/namespace");
}

TEST_F(XPathAxis, parent_leads_to_the_parent)
{
  EXPECT_EQ(from_d("parent::node()"), "a#1");
  EXPECT_EQ(from_d("parent::b"), "");
  EXPECT_EQ(from_d("@x/parent::node()"), "d#4");
  EXPECT_EQ(nodes(*document, "/parent::node()"), "");
  EXPECT_EQ(nodes(*document, "//f/parent::*|//h/parent::*|//c/parent::*"), "b#2 e#5 g#7");
}

TEST_F(XPathAxis, preceding_leads_to_what_ends_before_the_start)
{
  EXPECT_EQ(from_d("preceding::node()"), "<!--before--> b#2 c#3 'one'");
  EXPECT_EQ(nodes(*document, "//g/preceding::*"), "b#2 c#3 d#4 e#5 f#6");
  EXPECT_EQ(from_d("@x/preceding::*"), "b#2 c#3");
}

TEST_F(XPathAxis, preceding_sibling_leads_to_the_earlier_children_of_the_parent)
{
  EXPECT_EQ(from_d("preceding-sibling::node()"), "b#2 'one'");
}

TEST_F(XPathAxis, self_leads_to_the_node)
{
  EXPECT_EQ(from_d("self::d"), "d#4");
  EXPECT_EQ(from_d("self::a"), "");
  EXPECT_EQ(from_d("@x/self::node()"), "@x=7");
  EXPECT_EQ(from_d("@x/self::*"), "");
}

TEST_F(XPathAxis, positions_count_backwards_on_reverse_axes)
{
  EXPECT_EQ(nodes(*document, "//f/ancestor::*[1]"), "e#5");
  EXPECT_EQ(nodes(*document, "//f/ancestor-or-self::*[2]"), "e#5");
  EXPECT_EQ(nodes(*document, "//g/preceding::*[1]"), "f#6");
  EXPECT_EQ(nodes(*document, "//g/preceding-sibling::*[1]"), "d#4");
  EXPECT_EQ(nodes(*document, "//g/preceding-sibling::*[last()]"), "b#2");
}

TEST_F(XPathAxis, positions_count_in_document_order_once_the_set_is_in_parentheses)
{
  EXPECT_EQ(nodes(*document, "(//f/ancestor::*)[1]"), "a#1");
  EXPECT_EQ(nodes(*document, "(//g/preceding::*)[1]"), "b#2");
}

TEST_F(XPathAxis, nodes_of_several_contexts_come_once_and_in_document_order)
{
  EXPECT_EQ(nodes(*document, "//*/ancestor::*"), "a#1 b#2 d#4 e#5 g#7");
  EXPECT_EQ(nodes(*document, "//*/following::*"), "d#4 e#5 f#6 g#7 h#8");
  EXPECT_EQ(nodes(*document, "//*/preceding::*"), "b#2 c#3 d#4 e#5 f#6");
  EXPECT_EQ(nodes(*document, "//*/following-sibling::*"), "d#4 g#7");
  EXPECT_EQ(nodes(*document, "//*/preceding-sibling::*"), "b#2 d#4");
  EXPECT_EQ(nodes(*document, "//*/.."), "/ a#1 b#2 d#4 e#5 g#7");
  EXPECT_EQ(nodes(*document, "//*/descendant::*"), "b#2 c#3 d#4 e#5 f#6 g#7 h#8");
  EXPECT_EQ(nodes(*document, "//*/*"), "b#2 c#3 d#4 e#5 f#6 g#7 h#8");
  EXPECT_EQ(nodes(*document, "//*/preceding-sibling::*[1]"), "b#2 d#4");
  EXPECT_EQ(nodes(*document, "(//d|//@*)/descendant-or-self::node()[not(self::text()|self::comment())]"),
    "@id=1 @id=2 @id=3 d#4 @id=4 @x=7 @y=8 e#5 @id=5 f#6 @id=6 @id=7 @id=8");
}

TEST_F(XPathAxis, every_step_but_one_to_what_lies_below_starts_from_nodes_without_children_too)
{
  EXPECT_EQ(nodes(*document, "//self::f"), "f#6");
  EXPECT_EQ(nodes(*document, "//self::*[@id > 5][1]"), "f#6 g#7 h#8");
  EXPECT_EQ(nodes(*document, "//descendant-or-self::f[1]"), "f#6");
  EXPECT_EQ(nodes(*document, "//*/self::c"), "c#3");
  EXPECT_EQ(nodes(*document, "//@x/.."), "d#4");
  EXPECT_EQ(nodes(*document, "//f/following::*[1]"), "g#7");
  EXPECT_EQ(nodes(*document, "//*[last()]"), "a#1 c#3 e#5 f#6 g#7 h#8");
}
