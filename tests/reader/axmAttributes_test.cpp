#include "axmAttributes.h"

#include <axmEndException.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{
// A text on its own in memory, so that a read beyond the end is one beyond the block.
class Text
{
public:
  explicit Text(std::string const& given) : bytes(new char[given.size() + 1]), attributes(bytes.get() + given.size())
  {
    std::copy(given.c_str(), given.c_str() + given.size() + 1, bytes.get());
  }

  // The attribute of the tag at `place`, "(absent)" if there is none.
  std::string value(std::string const& name, std::size_t place = 0)
  {
    utString const found = attributes.value(bytes.get() + place, ut(name), ut_lit("(absent)"));
    return std::string(found.view());
  }

private:
  static utString ut(std::string const& text) { return utString(text.c_str(), static_cast<int>(text.size())); }

  std::unique_ptr<char[]> bytes;
  axmAttributes attributes;
};

std::string const long_name = "a_name_of_more_than_sixteen_bytes";
std::string const long_value = "a value of more bytes than a text has room for in itself";
}

TEST(axmAttributes, finds_values_in_any_order)
{
  Text text("<a x='1' y=\"two\"  z='3'>text</a>\n");
  EXPECT_EQ(text.value("z"), "3");
  EXPECT_EQ(text.value("x"), "1");
  EXPECT_EQ(text.value("y"), "two");
  EXPECT_EQ(text.value("z"), "3");
  EXPECT_EQ(text.value("w"), "(absent)");
  EXPECT_EQ(text.value("x"), "1");
}

TEST(axmAttributes, the_first_of_equal_names_counts)
{
  Text text("<a x='1' x='2'>text that is long enough</a>\n");
  EXPECT_EQ(text.value("x"), "1");
  EXPECT_EQ(text.value("x"), "1");
  EXPECT_EQ(text.value("y"), "(absent)");
  EXPECT_EQ(text.value("x"), "1");
}

TEST(axmAttributes, names_are_compared_whole)
{
  Text text("<a ab='1' b='2' abc='3' " + long_name + "='4' " + long_name + "s='5' a='6'>text</a>\n");
  EXPECT_EQ(text.value("a"), "6");
  EXPECT_EQ(text.value("abc"), "3");
  EXPECT_EQ(text.value("ab"), "1");
  EXPECT_EQ(text.value("b"), "2");
  EXPECT_EQ(text.value(long_name), "4");
  EXPECT_EQ(text.value(long_name + "s"), "5");
  EXPECT_EQ(text.value(long_name.substr(0, 20)), "(absent)");
  EXPECT_EQ(text.value(""), "(absent)");
  EXPECT_EQ(text.value("ab='1' b"), "(absent)");
}

TEST(axmAttributes, takes_names_and_quotes_as_they_are_written)
{
  Text text("<a x ='1' ='2' y=|a'b\"|\t\r\n z='>'>text</a>\n");
  EXPECT_EQ(text.value("x"), "(absent)");
  EXPECT_EQ(text.value("x "), "1");
  EXPECT_EQ(text.value(""), "2");
  EXPECT_EQ(text.value("y"), "a'b\"");
  EXPECT_EQ(text.value("z"), ">");
}

TEST(axmAttributes, hands_out_values_of_any_length)
{
  for (std::size_t length = 0; length < 70; ++length)
  {
    std::string const value(length, 'v');
    Text text("<a x='" + value + "' y='" + long_value + "'></a>\n");
    EXPECT_EQ(text.value("x"), value);
    EXPECT_EQ(text.value("y"), long_value);
  }
}

TEST(axmAttributes, remembers_only_so_many_and_still_finds_all)
{
  std::string tag = "<a";
  for (int i = 0; i < 200; ++i)
    tag += " n" + std::to_string(i) + "='" + std::to_string(i * 3) + "'";
  Text text(tag + "></a>\n");
  for (int round = 0; round < 2; ++round)
    for (int i = 200; i-- > 0;)
      ASSERT_EQ(text.value("n" + std::to_string(i)), std::to_string(i * 3));
  EXPECT_EQ(text.value("n200"), "(absent)");
}

TEST(axmAttributes, goes_from_one_tag_to_another_and_back)
{
  std::string const first = "<a x='1' y='2'>";
  Text text(first + "<b x='3'></b></a>\n");
  EXPECT_EQ(text.value("x"), "1");
  EXPECT_EQ(text.value("x", first.size()), "3");
  EXPECT_EQ(text.value("y", first.size()), "(absent)");
  EXPECT_EQ(text.value("y"), "2");
}

TEST(axmAttributes, searches_beyond_a_self_closing_tag)
{
  std::string const first = "<a x='1'/>";
  std::string const second = "<a x='2'/>";
  Text text(first + second + "<b y='3'></b>" + first + "<c></c>\n");
  // What stands between the attributes belongs to their names.
  EXPECT_EQ(text.value("y"), "(absent)");
  EXPECT_EQ(text.value("/><a x"), "2");
  EXPECT_EQ(text.value("/><b y"), "3");
  EXPECT_EQ(text.value("/><b y", first.size()), "3");
  EXPECT_EQ(text.value("x", first.size()), "2");
}

TEST(axmAttributes, throws_where_the_text_ends)
{
  for (char const* const bad : {"", "<", "<a", "<a ", "<a x", "<a x=", "<a x='", "<a x='1", "<a x='1'", "<a x='1' ",
         "<a x='1'/", "<a x='1'/>", "<a_long_name_for_an_element", "<a x='a long value that does not end"})
    EXPECT_THROW(Text(bad).value("z"), axmEndException) << bad;
  EXPECT_THROW(Text(std::string("<a x='1'\0 z='2'>text text text</a>\n", 36)).value("z"), axmEndException);
}
