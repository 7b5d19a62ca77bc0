#include <utServiceName.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
// The names that are left of `text`, qualifier by qualifier.
std::vector<std::string> dequalified(char const* text)
{
  std::vector<std::string> names;
  for (utServiceName name{utString(text)}; !name.invalid(); name.dequalify())
    names.push_back(name.name().c_str());
  return names;
}

using Names = std::vector<std::string>;
}

TEST(utServiceName, default_constructed_is_invalid)
{
  EXPECT_TRUE(utServiceName().invalid());
  EXPECT_EQ(utServiceName().name().length(), 0);
}

TEST(utServiceName, empty_name_is_invalid)
{
  EXPECT_TRUE(utServiceName(utString("")).invalid());
  EXPECT_TRUE(utServiceName(utString()).invalid());
  EXPECT_TRUE(utServiceName(utString("\0XMLService", 11)).invalid()) << "a name ends at a NUL";
}

TEST(utServiceName, holds_the_name_as_given)
{
  utServiceName const name(ut_lit("a::b::XMLService"));
  EXPECT_FALSE(name.invalid());
  EXPECT_EQ(name.name(), ut_lit("a::b::XMLService"));
}

TEST(utServiceName, dequalify_takes_the_leftmost_qualifier_away)
{
  EXPECT_EQ(dequalified("a::b::XMLService"), (Names{"a::b::XMLService", "b::XMLService", "XMLService"}));
}

TEST(utServiceName, dequalified_past_its_last_part_is_invalid_and_stays_so)
{
  utServiceName name(ut_lit("XMLService"));
  name.dequalify();
  EXPECT_TRUE(name.invalid());
  name.dequalify();
  EXPECT_TRUE(name.invalid());
}

TEST(utServiceName, separator_is_two_colons)
{
  EXPECT_EQ(dequalified("a:b"), (Names{"a:b"}));
  EXPECT_EQ(dequalified("a:b::c"), (Names{"a:b::c", "c"}));
  EXPECT_EQ(dequalified("a:::b"), (Names{"a:::b", ":b"}));
  EXPECT_EQ(dequalified("a::::b"), (Names{"a::::b", "::b", "b"}));
}

TEST(utServiceName, empty_parts_at_the_ends_end_or_give_way)
{
  EXPECT_EQ(dequalified("::XMLService"), (Names{"::XMLService", "XMLService"}));
  EXPECT_EQ(dequalified("a::"), (Names{"a::"}));
  EXPECT_EQ(dequalified("::"), (Names{"::"}));
}

TEST(utServiceName, names_are_equal_as_texts)
{
  EXPECT_TRUE(utServiceName(ut_lit("a::b")) == utServiceName(ut_lit("a::b")));
  EXPECT_FALSE(utServiceName(ut_lit("a::b")) == utServiceName(ut_lit("b")));
  EXPECT_TRUE(utServiceName(ut_lit("a")) != utServiceName(ut_lit("A")));
  EXPECT_FALSE(utServiceName(ut_lit("a")) != utServiceName(ut_lit("a")));
  EXPECT_TRUE(utServiceName() == utServiceName(ut_lit("")));
}

TEST(utServiceName, copies_are_independent)
{
  utServiceName const name(ut_lit("a::b"));
  utServiceName copy(name);
  copy.dequalify();
  EXPECT_EQ(name.name(), ut_lit("a::b"));
  EXPECT_EQ(copy.name(), ut_lit("b"));
}
