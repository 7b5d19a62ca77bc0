#include <axmParseError.h>

#include <gtest/gtest.h>

TEST(axmParseError, default_constructed_is_invalid_with_empty_texts_and_no_place)
{
  axmParseError const error;
  EXPECT_TRUE(error.invalid());
  EXPECT_TRUE(error.message().empty());
  EXPECT_TRUE(error.url().empty());
  EXPECT_EQ(error.line_number(), -1);
  EXPECT_EQ(error.column_number(), -1);
}
