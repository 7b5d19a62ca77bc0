#include <utServiceName.h>

#include <gtest/gtest.h>

TEST(utServiceName, dequalify_takes_the_leftmost_qualifier_away)
{
  utServiceName name(ut_lit("a::b::XMLService"));
  name.dequalify();
  EXPECT_EQ(name.name(), ut_lit("b::XMLService"));
  name.dequalify();
  EXPECT_EQ(name.name(), ut_lit("XMLService"));
  EXPECT_FALSE(name.invalid());
  name.dequalify();
  EXPECT_TRUE(name.invalid());
}
