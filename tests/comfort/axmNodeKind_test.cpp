#include "Document.h"

#include <vector>

namespace
{
char const all_kinds[] = "<!DOCTYPE r><r a='1'>t<!--c--><?p d?><![CDATA[x]]><e/></r>";

using Kinds = std::vector<axm::node_kind>;

Kinds const of_children = {axm::node_kind::text, axm::node_kind::comment, axm::node_kind::processing_instruction,
  axm::node_kind::text, axm::node_kind::element};
}

TEST(axmNodeKind, nodes_that_are_walked_to_say_what_they_are)
{
  auto const document = document_of(all_kinds);
  EXPECT_EQ(axm::node_kind::document, axm::kind(*document));
  EXPECT_EQ(axm::node_kind::document_type, axm::kind(*document->getFirstChild()));
  auto const root = document->getDocumentElement();
  EXPECT_EQ(axm::node_kind::attribute, axm::kind(*root->getAttributes()->item(0)));

  Kinds kinds;
  for (auto const& child : axm::children(root))
    kinds.push_back(axm::kind(*child));
  EXPECT_EQ(of_children, kinds);
}

TEST(axmNodeKind, items_of_lists_say_what_they_are)
{
  auto const document = document_of(all_kinds);
  Kinds kinds;
  for (auto const& item : axm::items(document->getDocumentElement()->getChildNodes()))
    kinds.push_back(axm::kind(*item));
  EXPECT_EQ(of_children, kinds);

  kinds.clear();
  for (auto const& item : axm::select(document, "/r/@a | /r/processing-instruction()"))
    kinds.push_back(axm::kind(*item));
  EXPECT_EQ((Kinds{axm::node_kind::attribute, axm::node_kind::processing_instruction}), kinds);
}

TEST(axmNodeKind, an_only_child_in_a_list_is_asked_for_by_its_parent)
{
  auto const document = document_of("<r><?p d?></r>");
  EXPECT_EQ(axm::node_kind::processing_instruction, axm::kind(*document->getDocumentElement()->getChildNodes()->at(0)));
}

TEST(axmNodeKind, only_elements_are_elements_in_a_list_too)
{
  auto const document = document_of(all_kinds);
  int elements = 0;
  for (auto const& item : axm::items(document->getDocumentElement()->getChildNodes()))
    elements += axm::as_element(item) != nullptr ? 1 : 0;
  EXPECT_EQ(1, elements);
  EXPECT_EQ(nullptr, axm::as_element(document));
  EXPECT_EQ(nullptr, axm::as_element(nullptr));
}
