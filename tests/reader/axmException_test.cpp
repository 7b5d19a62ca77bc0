#include "../slots.h"

#include <axmCharException.h>
#include <axmEndException.h>
#include <axmTagException.h>

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <type_traits>

TEST(axmException, explanation_has_the_first_slot)
{
  EXPECT_EQ(slot_of(&axmException::explanation), 0);
}

TEST(axmException, is_abstract_with_a_virtual_destructor_and_no_standard_exception)
{
  EXPECT_TRUE(std::is_abstract_v<axmException>);
  EXPECT_TRUE(std::has_virtual_destructor_v<axmException>);
  EXPECT_FALSE((std::is_base_of_v<std::exception, axmException>));
  EXPECT_EQ(sizeof(axmException), sizeof(void*));
}

TEST(axmEndException, explains_itself_with_one_newline_at_the_end)
{
  EXPECT_STREQ(axmEndException().explanation().c_str(), "axmEndException:: Xml reader moved of the end of the file\n");
}

TEST(axmEndException, can_be_copied_and_assigned)
{
  axmEndException const one;
  axmEndException other(one);
  other = one;
  EXPECT_STREQ(other.explanation().c_str(), one.explanation().c_str());
}

TEST(axmCharException, explanation_begins_at_the_offset_of_the_character)
{
  EXPECT_STREQ(axmCharException('!').explanation().c_str(), "ot contain expected char \n");
  EXPECT_STREQ(axmCharException('"').explanation().c_str(), "t contain expected char \n");
  EXPECT_STREQ(axmCharException('\'').explanation().c_str(), "tain expected char \n");
  EXPECT_STREQ(axmCharException('-').explanation().c_str(), "xpected char \n");
  EXPECT_STREQ(axmCharException('/').explanation().c_str(), "ected char \n");
}

TEST(axmCharException, explanation_for_every_code_there_is)
{
  std::string const text = "axmCharException:: Xml file did not contain expected char ";
  ASSERT_EQ(text.size(), 58u);
  for (int code = -128; code < 128; ++code)
  {
    bool const inside = code >= 0 && code < 58;
    EXPECT_EQ(axmCharException(static_cast<char>(code)).explanation().c_str(),
      (inside ? text.substr(static_cast<std::size_t>(code)) : std::string()) + "\n")
      << code;
  }
}

TEST(axmCharException, copies_explain_as_what_they_were_copied_from)
{
  axmCharException const one('-');
  axmCharException other(one);
  EXPECT_STREQ(other.explanation().c_str(), "xpected char \n");
  axmCharException third('<');
  third = one;
  EXPECT_STREQ(third.explanation().c_str(), "xpected char \n");
}

TEST(axmTagException, explains_itself_with_its_text)
{
  EXPECT_STREQ(
    axmTagException(ut_lit("item")).explanation().c_str(), "axmTagException:: Something wrong with tag item\n");
}

TEST(axmTagException, of_an_empty_string_explains_itself_without_one)
{
  EXPECT_STREQ(axmTagException(utString()).explanation().c_str(), "axmTagException:: Something wrong with tag \n");
  EXPECT_STREQ(axmTagException(ut_lit("")).explanation().c_str(), "axmTagException:: Something wrong with tag \n");
}

TEST(axmTagException, copies_explain_as_what_they_were_copied_from)
{
  axmTagException const one(ut_lit("item"));
  axmTagException const other(one);
  EXPECT_STREQ(other.explanation().c_str(), one.explanation().c_str());
  axmTagException third(ut_lit("x"));
  third = one;
  EXPECT_STREQ(third.explanation().c_str(), one.explanation().c_str());
}

TEST(axmTagException, can_be_assigned_to_itself)
{
  axmTagException one(ut_lit("item"));
  axmTagException const& same = one;
  one = same;
  EXPECT_STREQ(one.explanation().c_str(), "axmTagException:: Something wrong with tag item\n");
}

TEST(axmException, all_kinds_are_caught_by_the_base)
{
  auto const explained = [](auto const& error)
  {
    try
    {
      throw error;
    }
    catch (axmException const& caught)
    {
      return std::string(caught.explanation().c_str());
    }
  };
  EXPECT_EQ(explained(axmEndException()), "axmEndException:: Xml reader moved of the end of the file\n");
  EXPECT_EQ(explained(axmCharException('<')), "\n");
  EXPECT_EQ(explained(axmTagException(ut_lit("a"))), "axmTagException:: Something wrong with tag a\n");
}
