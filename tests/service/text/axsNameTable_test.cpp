#include "axsNameTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

namespace
{
axsName const& given(axsNameTable& table, std::string const& name)
{
  return *table.intern_checked(apString(name.c_str()));
}

std::string numbered(int i)
{
  return "n" + std::to_string(i);
}
}

TEST(axsNameTable, a_name_is_kept_once)
{
  axsNameTable table;
  axsName const& name = table.intern("a");
  EXPECT_EQ(&table.intern("a"), &name);
  EXPECT_EQ(&given(table, "a"), &name);
  EXPECT_EQ(table.find("a"), &name);
  EXPECT_EQ(&table.numbered(name.number()), &name);
  EXPECT_EQ(table.find("b"), nullptr);
  EXPECT_EQ(table.size(), 1u);
}

TEST(axsNameTable, what_is_no_name_is_not_kept)
{
  axsNameTable table;
  EXPECT_EQ(table.intern_checked(APSTRING("1")), nullptr);
  EXPECT_EQ(table.intern_checked(APSTRING("a b")), nullptr);
  EXPECT_EQ(table.intern_checked(apString()), nullptr);
  EXPECT_EQ(table.size(), 0u);
}

TEST(axsNameTable, names_of_a_program_that_no_node_has_go)
{
  axsNameTable table;
  std::size_t most = 0;
  for (int i = 0; i < 100000; ++i)
  {
    axsName const& name = given(table, numbered(i));
    ASSERT_EQ(name.utf8(), numbered(i));
    ASSERT_EQ(&table.numbered(name.number()), &name);
    if (i % 2 == 0)
    {
      table.add_user(name);
      table.add_user(name);
      table.remove_user(name);
      table.remove_user(name);
    }
    most = std::max(most, table.size());
  }
  EXPECT_LT(most, 1000u);
  EXPECT_EQ(table.find(numbered(1)), nullptr);
}

TEST(axsNameTable, names_that_nodes_have_and_names_that_were_read_stay)
{
  axsNameTable table;
  std::set<axsName const*> kept;
  for (int i = 0; i < 500; ++i)
    kept.insert(&table.intern("read" + std::to_string(i)));
  for (int i = 0; i < 500; ++i)
  {
    axsName const& name = given(table, "used" + std::to_string(i));
    table.add_user(name);
    kept.insert(&name);
  }
  // One that a program gave first, and a document has later.
  axsName const& both = given(table, "both");
  table.add_user(both);
  EXPECT_EQ(&table.intern("both"), &both);
  table.remove_user(both);
  // And one whose nodes had gone before.
  axsName const& again = given(table, "again");
  EXPECT_EQ(&table.intern("again"), &again);
  for (int i = 0; i < 10000; ++i)
    given(table, numbered(i));
  for (axsName const* const name : kept)
  {
    ASSERT_EQ(table.find(name->utf8()), name);
    ASSERT_EQ(&table.numbered(name->number()), name);
  }
  EXPECT_EQ(table.find("both"), &both);
  EXPECT_EQ(table.find("again"), &again);
  EXPECT_LT(table.size(), 3500u);
}

TEST(axsNameTable, numbers_of_names_that_have_gone_are_given_again)
{
  axsNameTable table;
  for (int i = 0; i < 200000; ++i)
    ASSERT_NE(given(table, numbered(i)).number(), axsName::no_number);
  std::set<std::uint16_t> numbers;
  for (int i = 0; i < 1000; ++i)
  {
    axsName const& name = given(table, "used" + std::to_string(i));
    table.add_user(name);
    EXPECT_TRUE(numbers.insert(name.number()).second);
  }
}

TEST(axsNameTable, a_name_that_is_used_again_in_time_stays)
{
  axsNameTable table;
  axsName const& name = given(table, "a");
  table.add_user(name);
  table.remove_user(name);
  EXPECT_EQ(&given(table, "a"), &name);
  table.add_user(name);
  for (int i = 0; i < 10000; ++i)
    given(table, numbered(i));
  EXPECT_EQ(table.find("a"), &name);
}
