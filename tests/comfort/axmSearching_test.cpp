#include "Document.h"

#include <vector>

TEST(axmSearching, selects_nodes_and_values)
{
  auto const document = document_of("<r><b p='1.5'/><b p='2.5'/><b p='x'/></r>");
  int number = 0;
  for (auto const& book : axm::select(document, "//b"))
    number += axm::is_element(*book) ? 1 : 0;
  EXPECT_EQ(3, number);
  EXPECT_EQ((std::vector<double>{1.5, 2.5}), axm::select<double>(document, "//b/@p"));
  EXPECT_EQ((std::vector<std::string>{"1.5", "2.5", "x"}), axm::select<std::string>(document, "//b/@p"));
  EXPECT_EQ(nullptr, axm::select_one(document, "//absent"));
  EXPECT_EQ(1.5, axm::attribute<double>(axm::select_one(document, "//b"), "p"));
}

TEST(axmSearching, the_context_may_be_any_element_or_document)
{
  auto const document = document_of("<r><b><c/></b>text</r>");
  std::shared_ptr<axmNode> const b = document->getDocumentElement()->getFirstChild();
  EXPECT_NE(nullptr, axm::select_one(b, "c"));
  EXPECT_NE(nullptr, axm::select_one(std::shared_ptr<axmNode>(document), "b"));
  EXPECT_EQ(nullptr, axm::select_one(b->getNextSibling(), ".."));
  EXPECT_EQ(nullptr, axm::select_one(nullptr, ".."));
}
