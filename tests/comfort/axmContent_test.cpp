#include "Document.h"

#include <sstream>

TEST(axmContent, where_there_is_no_node_there_is_none)
{
  std::shared_ptr<axmElement> const none;
  EXPECT_EQ("", axm::text(none));
  EXPECT_EQ(nullptr, axm::detach(none));
  EXPECT_EQ(nullptr, axm::append(none, "a"));
  EXPECT_EQ(nullptr, axm::child(none, "a"));
  EXPECT_EQ(std::nullopt, axm::child_text(none, "a"));
}

TEST(axmContent, a_node_in_no_tree_stays_as_it_is)
{
  auto const document = document_of("<r/>");
  auto const loose = document->createElement(APSTRING("a"));
  EXPECT_EQ(loose, axm::detach(loose));
  EXPECT_EQ(nullptr, loose->getParentNode());
}

TEST(axmContent, an_element_is_appended_where_one_can_stand)
{
  auto const document = document_of("<r>text</r>");
  auto const root = document->getDocumentElement();
  auto const empty = axm::append(root, "a");
  ASSERT_NE(nullptr, empty);
  EXPECT_FALSE(empty->hasChildNodes());
  ASSERT_NE(nullptr, axm::append(empty, "b", "c"));
  EXPECT_EQ("c", axm::child_text(empty, "b"));
  EXPECT_EQ(nullptr, axm::append(root->getFirstChild(), "a"));
  EXPECT_EQ(nullptr, axm::append(root, "1 2"));
  EXPECT_EQ(nullptr, axm::append(document, "second_root"));
}

TEST(axmResult, an_error_is_written_to_a_stream_in_one_line)
{
  std::ostringstream out;
  out << axm::error{"wrong", "a.xml", 2, 3} << '|' << axm::error{"wrong"};
  EXPECT_EQ("a.xml:2:3: wrong|wrong", out.str());
}
