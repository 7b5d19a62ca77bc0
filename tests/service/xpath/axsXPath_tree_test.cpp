#include "Subject.h"

#include <axmNamedNodeMap.h>
#include <axmTextNode.h>

#include <gtest/gtest.h>

namespace
{
using subject::create;
using subject::load;
using subject::nodes;
using subject::value;
}

TEST(XPathTree, texts_beside_each_other_are_one_text_node)
{
  auto const document = load("<r>one<![CDATA[<two>]]>three<!--c-->four</r>");
  EXPECT_EQ(value(*document, "count(//text())"), "number 2");
  EXPECT_EQ(value(*document, "string(//text())"), "string one<two>three");
  EXPECT_EQ(value(*document, "string(//comment()/preceding-sibling::node())"), "string one<two>three");
  EXPECT_EQ(value(*document, "count(//text()[1]/following-sibling::node())"), "number 2");
  EXPECT_EQ(nodes(*document, "/r/node()[2]"), "<!--c-->");
  EXPECT_EQ(nodes(*document, "//text()[.='one<two>three']"), "'one'");
}

TEST(XPathTree, any_text_of_a_text_node_stands_for_it_as_context)
{
  auto const document = load("<r>one<![CDATA[two]]></r>");
  auto const second = document->getDocumentElement()->getLastChild();
  EXPECT_EQ(subject::label(*second), "'two'");
  EXPECT_EQ(nodes(*second, "."), "'one'");
  EXPECT_EQ(value(*second, "string()"), "string onetwo");
}

TEST(XPathTree, texts_without_a_character_are_no_nodes)
{
  auto const document = create("r");
  auto const root = document->getDocumentElement();
  auto const empty = root->appendChild(document->createTextNode(APSTRING("")));
  EXPECT_EQ(nodes(*document, "//node()"), "r");
  EXPECT_EQ(nodes(*empty, "."), "error at 1: the context is no node of XPath");
  root->appendChild(document->createTextNode(APSTRING("x")));
  EXPECT_EQ(value(*document, "count(//text()[.='x'])"), "number 1");
}

TEST(XPathTree, the_document_type_is_no_node)
{
  auto const document = load("<!DOCTYPE r [<!ELEMENT r ANY>]><r/>");
  EXPECT_EQ(nodes(*document, "/node()"), "r");
  EXPECT_EQ(nodes(*document, "/r/preceding::node()"), "");
  EXPECT_EQ(nodes(*document->getFirstChild(), "."), "error at 1: the context is no node of XPath");
}

TEST(XPathTree, declarations_of_namespaces_are_no_attributes)
{
  auto const document = load("<r xmlns='urn:d' xmlns:p='urn:p' a='1'/>");
  EXPECT_EQ(nodes(*document, "//@*"), "@a=1");
  EXPECT_EQ(nodes(*document, "//@xmlns"), "");
  EXPECT_EQ(value(*document, "count(//@node())"), "number 1");
}

TEST(XPathTree, a_name_without_a_prefix_is_in_no_namespace)
{
  auto const document = load("<r xmlns='urn:d' xmlns:p='urn:d' x='1'><a/><b xmlns=''><a id='1'/></b><p:a/></r>");
  EXPECT_EQ(nodes(*document, "//a"), "a#1");
  EXPECT_EQ(nodes(*document, "//p:a"), "a p:a");
  EXPECT_EQ(nodes(*document, "/p:r/@x"), "@x=1");
  EXPECT_EQ(value(*document, "count(//b/namespace::*)"), "number 2");
}

TEST(XPathTree, prefixes_are_those_in_scope_of_the_context_node)
{
  auto const document = load("<r xmlns:p='urn:1'><x xmlns:p='urn:2'><y/></x><a xmlns='urn:2'/><b xmlns='urn:1'/></r>");
  auto const root = document->getDocumentElement();
  auto const y = root->getFirstChild()->getFirstChild();
  EXPECT_EQ(nodes(*root, "//p:*"), "b");
  EXPECT_EQ(nodes(*y, "//p:*"), "a");
  EXPECT_EQ(nodes(*document, "//p:*"), "b");
  EXPECT_EQ(nodes(*root, "//xml:*|//@xml:*"), "");
}

TEST(XPathTree, an_element_with_an_undeclared_prefix_matches_only_the_star)
{
  auto const document = create("r");
  document->getDocumentElement()->appendChild(document->createElement(APSTRING("p:a")));
  EXPECT_EQ(nodes(*document, "//*"), "r p:a");
  EXPECT_EQ(nodes(*document, "//a"), "");
  EXPECT_EQ(value(*document, "namespace-uri(//r/*)"), "string ");
  EXPECT_EQ(value(*document, "local-name(//r/*)"), "string a");
}

TEST(XPathTree, one_declaration_is_handed_out_once)
{
  auto const document = load("<r xmlns:p='urn:p'><a/><b/></r>");
  EXPECT_EQ(nodes(*document, "//namespace::*"), "@xmlns:p=urn:p");
  EXPECT_EQ(value(*document, "count(//namespace::*)"), "number 6");
  EXPECT_EQ(nodes(*document, "//namespace::p/.."), "r a b");
  EXPECT_EQ(nodes(*document, "//namespace::xml"), "");
}

namespace
{
// Elements enough for a walk from one in the middle to its end, or to one at its beginning, to be long, each with an
// attribute and a namespace.
std::string long_tree()
{
  std::string text = "<r>";
  for (int id = 0; id < 6000; ++id)
    text += "<i id='" + std::to_string(id) + "' xmlns:p='u'/>";
  return text + "</r>";
}
}

TEST(XPathTree, nodes_far_from_each_other_are_in_document_order)
{
  auto const document = load(long_tree());
  EXPECT_EQ(nodes(*document, "//i[@id=3000] | //i[@id=5] | //i[@id=1500] | //i[@id=5]/@id"), "i#5 @id=5 i#1500 i#3000");
  EXPECT_EQ(nodes(*document, "//i[@id=3000]/@id | /r/i[last()] | //i[@id=3000] | //i[@id > 10 and @id < 13] | /"),
    "/ i#11 i#12 i#3000 @id=3000 i#5999");
  EXPECT_EQ(nodes(*document, "//i[@id=3000] | //i[@id=5] | //i[@id=3000]"), "i#5 i#3000");
}

TEST(XPathTree, a_namespace_stands_between_its_element_and_the_attributes_however_far_it_is)
{
  auto const document = load(long_tree());
  std::string const set =
    "(//i[@id=3000]/namespace::p | //i[@id=3000]/@id | //i[@id=5]/@id | //i[@id=5]/namespace::p | //i[@id=5])";
  EXPECT_EQ(value(*document, "count(" + set + ")"), "number 5");
  char const* const names[] = {"i", "p", "id", "p", "id"};
  for (int place = 1; place <= 5; ++place)
    EXPECT_EQ(
      value(*document, "name(" + set + "[" + std::to_string(place) + "])"), std::string("string ") + names[place - 1])
      << place;
}

// After a few sets, all nodes of the tree have their numbers.
TEST(XPathTree, set_after_set_of_one_expression_is_in_document_order)
{
  auto const document = load(long_tree());
  std::string expression = "concat(''";
  std::string expected = "string ";
  for (int id = 10; id < 18; ++id)
  {
    std::string const early = std::to_string(id);
    expression += ", (//i[@id=30" + early + "]/@id | //i[@id=" + early + "]/@id)[1]";
    expected += early;
  }
  EXPECT_EQ(value(*document, expression + ")"), expected);
}

TEST(XPathTree, the_root_of_a_detached_tree_stands_before_nodes_however_far_they_are)
{
  auto const document = load(long_tree());
  auto const root = document->getDocumentElement();
  document->removeChild(root);
  std::string const set = "(//i[@id=3000] | //i[@id=5] | /)";
  EXPECT_EQ(value(*root, "count(" + set + ")"), "number 3");
  EXPECT_EQ(value(*root, "count(" + set + "[1]/self::*)"), "number 0");
  EXPECT_EQ(value(*root, "string(" + set + "[2]/@id)"), "string 5");
  EXPECT_EQ(nodes(*root, set), "i#5 i#3000");
}

TEST(XPathTree, an_absolute_path_in_a_detached_tree_starts_above_its_topmost_node)
{
  auto const document = create("r");
  auto const top = document->createElement(APSTRING("top"));
  auto const below = top->appendChild(document->createElement(APSTRING("below")));
  EXPECT_EQ(nodes(*below, "/top"), "top");
  EXPECT_EQ(nodes(*below, "//top/below"), "below");
  EXPECT_EQ(nodes(*top, "//*"), "top below");
  EXPECT_EQ(nodes(*below, "ancestor::node()"), "top");
  EXPECT_EQ(value(*below, "count(ancestor::node())"), "number 2");
  EXPECT_EQ(nodes(*below, "/"), "");
  EXPECT_EQ(nodes(*below, "//r"), "");
  EXPECT_EQ(nodes(*below, "/*|/|/*/*"), "top below");
  document->getDocumentElement()->appendChild(top);
  EXPECT_EQ(nodes(*below, "/r/top"), "top");
}

TEST(XPathTree, a_removed_tree_is_searched_by_itself)
{
  auto const document = load("<r><a><b id='1'/></a><b id='2'/></r>");
  auto const root = document->getDocumentElement();
  auto const a = root->removeChild(root->getFirstChild());
  EXPECT_EQ(nodes(*a, "//b"), "b#1");
  EXPECT_EQ(nodes(*a, "/a/b/.."), "a");
  EXPECT_EQ(nodes(*document, "//b"), "b#2");
}

TEST(XPathTree, an_attribute_that_was_removed_stands_alone)
{
  auto const document = load("<r x='1'/>");
  auto const attribute = document->getDocumentElement()->getAttributes()->removeNamedItem(APSTRING("x"));
  EXPECT_EQ(nodes(*attribute, "."), "@x=1");
  EXPECT_EQ(nodes(*attribute, "..|//*|following::*|preceding::*|ancestor::*|/*"), "");
}

TEST(XPathTree, attributes_and_texts_can_be_the_context)
{
  auto const document = load("<r><a x='1'>t</a><b/></r>");
  auto const a = document->getDocumentElement()->getFirstChild();
  EXPECT_EQ(nodes(*a->getAttributes()->item(0), ".."), "a");
  EXPECT_EQ(nodes(*a->getFirstChild(), "../following-sibling::*"), "b");
}

TEST(XPathTree, edits_are_seen_at_once)
{
  auto const document = load("<r><a id='1'/></r>");
  auto const root = document->getDocumentElement();
  EXPECT_EQ(nodes(*document, "//a"), "a#1");
  auto const added = document->createElement(APSTRING("a"));
  added->setAttribute(APSTRING("id"), APSTRING("0"));
  root->insertBefore(added, root->getFirstChild());
  EXPECT_EQ(nodes(*document, "//a"), "a#0 a#1");
  EXPECT_EQ(nodes(*document, "//a[@id=1]|//a[@id=0]"), "a#0 a#1");
  root->setAttribute(APSTRING("xmlns"), APSTRING("urn:d"));
  EXPECT_EQ(nodes(*document, "//a"), "");
}
