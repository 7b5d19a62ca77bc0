// What people write by mistake and what works all the same. Only these headers are included: what they hand out can be used.

#include <axmDocumentFactory.h>
#include <axsRegister.h>

#include <gtest/gtest.h>

#include <sstream>

namespace
{
std::shared_ptr<axmDocument> made()
{
  axs_register();
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  return factory->createDocument("r");
}
}

TEST(axmMistakes, what_a_document_makes_is_a_node_without_a_header_of_its_own)
{
  auto const document = made();
  std::shared_ptr<axmNode> const text = document->createTextNode("text");
  std::shared_ptr<axmNode> const root = document->getDocumentElement();
  EXPECT_NE(root->appendChild(text), nullptr);
  EXPECT_NE(root->appendChild(document->createComment("comment")), nullptr);
  EXPECT_NE(root->appendChild(document->createElement("e")), nullptr);
  EXPECT_EQ(root->getChildNodes()->length(), 3);
  EXPECT_EQ(root->getAttributes()->getLength(), 0);
}

TEST(axmMistakes, a_literal_that_is_set_is_a_text_and_no_bool)
{
  auto const root = made()->getDocumentElement();
  EXPECT_TRUE(root->set_attribute("a", "yes"));
  EXPECT_EQ(root->getAttribute("a"), apString("yes"));
  EXPECT_TRUE(root->set_attribute("b", L"no"));
  EXPECT_EQ(root->getAttribute("b"), apString("no"));
}

TEST(axmMistakes, texts_are_written_to_streams)
{
  std::ostringstream out;
  out << axmParseError("message").message() << ' ' << made()->getDocumentElement()->getNodeName();
  EXPECT_EQ(out.str(), "message r");
}
