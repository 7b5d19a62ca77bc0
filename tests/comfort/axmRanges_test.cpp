#include "Document.h"

#include <string>

namespace
{
std::string names_of(std::shared_ptr<axmNode> const& node)
{
  std::string names;
  for (auto const& element : axm::elements(node))
    names += axm::utf8(element->getNodeName());
  return names;
}
}

TEST(axmRanges, elements_are_the_children_that_are_elements)
{
  auto const root = document_of("<r>x<a/><!--c--><b/>y<a/></r>")->getDocumentElement();
  EXPECT_EQ("aba", names_of(root));
  int number = 0;
  for (auto const& a : axm::elements(root, "a"))
    number += a->getNodeName() == APSTRING("a") ? 1 : 100;
  EXPECT_EQ(2, number);
}

TEST(axmRanges, nothing_has_no_children_and_no_attributes)
{
  for (auto const& child : axm::children(nullptr))
    FAIL() << child->getNodeName();
  for (auto const& attribute : axm::attributes(nullptr))
    FAIL() << attribute->getNodeName();
  for (auto const& item : axm::items(nullptr))
    FAIL() << item->getNodeName();
}

TEST(axmRanges, the_current_child_may_be_taken_out)
{
  auto const root = document_of("<r><a/><b/><c/><d/></r>")->getDocumentElement();
  for (auto const& child : axm::elements(root))
    if (child->getNodeName() != APSTRING("c"))
      axm::detach(child);
  EXPECT_EQ("c", names_of(root));
}

TEST(axmRanges, the_current_child_may_be_moved_elsewhere)
{
  auto const root = document_of("<r><a/><b/><c/><t/></r>")->getDocumentElement();
  auto const last = axm::child(root, "t");
  for (auto const& child : axm::elements(root))
    if (child->getNodeName() != APSTRING("t"))
      last->appendChild(axm::detach(child));
  EXPECT_EQ("t", names_of(root));
  EXPECT_EQ("abc", names_of(last));
}

TEST(axmRanges, a_child_inserted_after_the_current_one_follows)
{
  auto const root = document_of("<r><a/><b/></r>")->getDocumentElement();
  std::string seen;
  for (auto const& child : axm::children(root))
  {
    seen += axm::utf8(child->getNodeName());
    if (child->getNodeName() == APSTRING("a"))
      root->insertBefore(root->getOwnerDocument()->createElement(APSTRING("n")), child->getNextSibling());
  }
  EXPECT_EQ("anb", seen);
}

TEST(axmRanges, attributes_come_with_name_and_value)
{
  auto const root = document_of("<r a='1' b='2'/>")->getDocumentElement();
  std::string all;
  for (auto const& attribute : axm::attributes(root))
    all += axm::utf8(attribute->getNodeName()) + axm::utf8(attribute->getNodeValue());
  EXPECT_EQ("a1b2", all);
}

TEST(axmRanges, the_current_attribute_may_be_taken_away)
{
  auto const root = document_of("<r a='1' b='2' c='3'/>")->getDocumentElement();
  for (auto const& attribute : axm::attributes(root))
    if (attribute->getNodeValue() != APSTRING("2"))
      root->removeAttribute(attribute->getNodeName());
  EXPECT_EQ("<r b=\"2\"/>", axm::utf8(root->get_xml()));
}

TEST(axmRanges, the_current_node_of_a_result_may_be_taken_out)
{
  auto const document = document_of("<r><a><b/></a><a/><c/><a/></r>");
  int number = 0;
  for (auto const& found : axm::select(document, "//a | //b"))
  {
    axm::detach(found);
    ++number;
  }
  EXPECT_EQ(4, number);
  EXPECT_EQ("<r><c/></r>", axm::utf8(document->getDocumentElement()->get_xml()));
}
