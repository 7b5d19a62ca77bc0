#include <axmParseError.h>

#include <climits>
#include <gtest/gtest.h>
#include <type_traits>

namespace
{
axmParseError all_set()
{
  axmParseError error(L"message");
  error.set_url(L"url");
  error.set_line_number(5);
  error.set_column_number(7);
  return error;
}

void expect_all_set(axmParseError const& error)
{
  EXPECT_FALSE(error.invalid());
  EXPECT_EQ(error.message().view(), L"message");
  EXPECT_EQ(error.url().view(), L"url");
  EXPECT_EQ(error.line_number(), 5);
  EXPECT_EQ(error.column_number(), 7);
}
}

TEST(axmParseError, default_constructed_is_invalid_with_empty_texts_and_no_place)
{
  axmParseError const error;
  EXPECT_TRUE(error.invalid());
  EXPECT_TRUE(error.message().empty());
  EXPECT_TRUE(error.url().empty());
  EXPECT_EQ(error.line_number(), -1);
  EXPECT_EQ(error.column_number(), -1);
}

TEST(axmParseError, made_from_a_message_is_an_error_without_place)
{
  axmParseError const error(L"message");
  EXPECT_FALSE(error.invalid());
  EXPECT_EQ(error.message().view(), L"message");
  EXPECT_TRUE(error.url().empty());
  EXPECT_EQ(error.line_number(), -1);
  EXPECT_EQ(error.column_number(), -1);
}

TEST(axmParseError, made_from_an_empty_message_is_an_error)
{
  axmParseError const error{apString()};
  EXPECT_FALSE(error.invalid());
  EXPECT_TRUE(error.message().empty());
}

TEST(axmParseError, setters_store_what_they_are_given)
{
  axmParseError error = all_set();
  expect_all_set(error);
  error.set_url(apString());
  error.set_line_number(INT_MIN);
  error.set_column_number(INT_MAX);
  EXPECT_TRUE(error.url().empty());
  EXPECT_EQ(error.line_number(), INT_MIN);
  EXPECT_EQ(error.column_number(), INT_MAX);
}

TEST(axmParseError, url_line_and_column_do_not_make_an_error)
{
  axmParseError error;
  error.set_line_number(5);
  EXPECT_TRUE(error.invalid());
  error.set_column_number(5);
  error.set_url(L"url");
  EXPECT_TRUE(error.invalid());
  EXPECT_EQ(error.line_number(), 5);
}

TEST(axmParseError, copy_keeps_all_members_and_is_independent)
{
  axmParseError const error = all_set();
  axmParseError copy(error);
  expect_all_set(copy);
  copy.set_url(L"other");
  copy.set_line_number(1);
  copy.set_column_number(2);
  expect_all_set(error);
}

TEST(axmParseError, assignment_keeps_all_members)
{
  axmParseError assigned;
  assigned = all_set();
  expect_all_set(assigned);
  axmParseError const& same = assigned;
  assigned = same;
  expect_all_set(assigned);
  assigned = axmParseError();
  EXPECT_TRUE(assigned.invalid());
  EXPECT_TRUE(assigned.message().empty());
  EXPECT_EQ(assigned.line_number(), -1);
}

TEST(axmParseError, has_no_virtual_operations)
{
  EXPECT_FALSE(std::is_polymorphic_v<axmParseError>);
}
