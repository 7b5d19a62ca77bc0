#include "Outcome.h"

#include <axmInitialPositionX.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace
{
class Declaration
{
public:
  explicit Declaration(char const* given) : text(given), position(&text[0]) {}

  std::string version() { return position.version().c_str(); }
  std::string encoding() { return position.encoding().c_str(); }
  std::string standalone() { return position.standalone().c_str(); }
  std::string end_point() { return position.end_point(); }

  std::string text;
  axmInitialPositionX position;
};
}

TEST(axmInitialPositionX, adds_nothing_to_its_base_and_nothing_virtual)
{
  EXPECT_EQ(sizeof(axmInitialPositionX), sizeof(axmPositionX));
  EXPECT_FALSE(std::is_polymorphic_v<axmInitialPositionX>);
  EXPECT_TRUE((std::is_convertible_v<axmInitialPositionX*, axmPositionX*>));
}

TEST(axmInitialPositionX, defaults_where_only_the_version_is_given)
{
  Declaration declaration("<?xml version=\"1.0\"?><r></r>\n");
  EXPECT_EQ(declaration.version(), "1.0");
  EXPECT_EQ(declaration.encoding(), "utf-8");
  EXPECT_EQ(declaration.standalone(), "no");
}

TEST(axmInitialPositionX, values_come_as_they_are_written)
{
  Declaration declaration("<?xml version='1.0' encoding='UTF-16' standalone='yes'?>\n");
  EXPECT_EQ(declaration.encoding(), "UTF-16");
  EXPECT_EQ(declaration.standalone(), "yes");
  EXPECT_EQ(declaration.version(), "1.0");
}

TEST(axmInitialPositionX, standalone_may_stand_after_the_version)
{
  EXPECT_EQ(Declaration("<?xml version='1.0' standalone='yes'?>\n").standalone(), "yes");
  EXPECT_EQ(Declaration("<?xml version='1.0' standalone=''?>\n").standalone(), "");
}

TEST(axmInitialPositionX, an_empty_encoding_is_utf8)
{
  EXPECT_EQ(Declaration("<?xml version=\"1.0\" encoding=\"\"?>\n").encoding(), "utf-8");
}

TEST(axmInitialPositionX, any_character_is_a_quote)
{
  EXPECT_EQ(Declaration("<?xml version=x1.0x encoding=|a|?>\n").encoding(), "a");
}

TEST(axmInitialPositionX, white_space_may_stand_between_the_parts_and_need_not)
{
  EXPECT_EQ(Declaration("<?xmlversion='1.0'encoding='a'standalone='b'?>\n").standalone(), "b");
  EXPECT_EQ(Declaration("<?xml\t\r\nversion='1.0'\nencoding='a'?>\n").encoding(), "a");
}

TEST(axmInitialPositionX, white_space_before_the_equals_sign_is_an_error)
{
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version = \"1.0\"?>\n").version(); }), char_error('='));
}

TEST(axmInitialPositionX, a_document_that_does_not_begin_with_the_declaration_is_an_error)
{
  EXPECT_EQ(thrown_by([] { Declaration("\n<?xml version=\"1.0\"?>\n").encoding(); }), char_error('<'));
  EXPECT_EQ(thrown_by([] { Declaration("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n").encoding(); }), char_error('<'));
  EXPECT_EQ(thrown_by([] { Declaration("<root>\n").encoding(); }), char_error('?'));
  EXPECT_EQ(thrown_by([] { Declaration("<?XML version=\"1.0\"?>\n").encoding(); }), char_error('x'));
  EXPECT_EQ(thrown_by([] { Declaration("").encoding(); }), char_error('<'));
}

TEST(axmInitialPositionX, parts_that_are_missing_or_misspelt_are_errors)
{
  EXPECT_EQ(thrown_by([] { Declaration("<?xml encoding='a'?>\n").version(); }), char_error('v'));
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0' encodinx='a'?>\n").encoding(); }), char_error('g'));
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0' standalane='a'?>\n").standalone(); }), char_error('o'));
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0' encoding'a'?>\n").encoding(); }), char_error('='));
}

TEST(axmInitialPositionX, a_declaration_that_does_not_end_is_the_end_error)
{
  EXPECT_EQ(thrown_by([] { Declaration("<?xml").version(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml ").version(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0").version(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0'").version(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0' ").encoding(); }), "end");
}

TEST(axmInitialPositionX, end_point_is_after_the_declaration_white_space_and_comments)
{
  EXPECT_EQ(Declaration("<?xml version='1.0'?>\n<!--c-->\n <!--d--><root>\n").end_point(), "<root>\n");
}

TEST(axmInitialPositionX, end_point_without_a_declaration_is_after_the_first_tag)
{
  EXPECT_EQ(Declaration("<root> <a/>\n").end_point(), "<a/>\n");
}

TEST(axmInitialPositionX, end_point_of_a_document_that_ends_there_is_the_end_error)
{
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0'?>").end_point(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml version='1.0'").end_point(); }), "end");
  EXPECT_EQ(thrown_by([] { Declaration("<?xml?>\n").end_point(); }), "end");
}

TEST(axmInitialPositionX, operations_may_be_called_in_any_order_again_and_again)
{
  Declaration declaration("<?xml version='1.0' encoding='a' standalone='b'?><r>\n");
  for (int i = 0; i < 2; ++i)
  {
    EXPECT_EQ(declaration.end_point(), "<r>\n");
    EXPECT_EQ(declaration.standalone(), "b");
    EXPECT_EQ(declaration.version(), "1.0");
    EXPECT_EQ(declaration.encoding(), "a");
  }
}

TEST(axmInitialPositionX, finds_the_root_element_after_the_encoding_was_read)
{
  for (char const* const text :
    {"<?xml version='1.0'?><r>x</r>\n", "<?xml version='1.0' encoding='a' standalone='b' ?>\n<r>x</r>\n"})
  {
    Declaration declaration(text);
    declaration.encoding();
    axmPositionX* const root = declaration.position.go_to_sub_tag(utPtrReleaseToCaller, ut_lit("r"));
    ASSERT_NE(root, nullptr);
    EXPECT_STREQ(root->text_node().c_str(), "x");
    delete root;
  }
}
