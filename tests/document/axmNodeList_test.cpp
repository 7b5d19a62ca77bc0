#include <axmNodeList.h>

#include "../PrivateMember.h"
#include "TestTree.h"

#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

struct Cursor
{
  using type = int axmNodeList::*;
  friend type private_member(Cursor);
};

template struct PrivateMember<Cursor, &axmNodeList::cursor>;

TEST(axmNodeList, is_empty_when_its_length_is_0)
{
  EXPECT_TRUE(TestList(0).isEmpty());
  EXPECT_FALSE(TestList(1).isEmpty());
}

TEST(axmNodeList, cursor_stands_before_the_first_item_at_the_start)
{
  EXPECT_TRUE(TestList(0).invalid());
  EXPECT_TRUE(TestList(3).invalid());
}

TEST(axmNodeList, empty_list_has_no_next_item_however_often_it_is_asked)
{
  TestList list(0);
  for (int i = 0; i < 5; ++i)
  {
    EXPECT_FALSE(++list);
    EXPECT_TRUE(list.invalid());
    EXPECT_EQ(list.next_node(), nullptr);
  }
  list.reset();
  EXPECT_FALSE(++list);
  EXPECT_EQ(list.next_node(), nullptr);
}

TEST(axmNodeList, increment_visits_the_items_in_order_and_then_fails)
{
  TestList list(3);
  for (int round = 0; round < 2; ++round)
  {
    for (int i = 0; i < 3; ++i)
    {
      ASSERT_TRUE(++list);
      EXPECT_FALSE(list.invalid());
      EXPECT_EQ(list(), list.at(i));
    }
    EXPECT_FALSE(++list);
    EXPECT_TRUE(list.invalid());
    list.reset();
    EXPECT_TRUE(list.invalid());
  }
}

TEST(axmNodeList, increment_past_the_end_starts_again_at_the_first_item)
{
  TestList list(2);
  ++list;
  ++list;
  EXPECT_FALSE(++list);
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(0));
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(1));
  EXPECT_FALSE(++list);
}

TEST(axmNodeList, reset_goes_before_the_first_item_from_anywhere)
{
  TestList list(2);
  ++list;
  list.reset();
  EXPECT_TRUE(list.invalid());
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(0));
}

TEST(axmNodeList, next_node_hands_out_every_item_once_and_then_none)
{
  TestList list(3);
  std::vector<std::shared_ptr<axmElement>> visited;
  while (std::shared_ptr<axmElement> const item = list.next_node())
    visited.push_back(item);
  EXPECT_EQ(visited, list.items);
  EXPECT_EQ(list.next_node(), list.at(0)) << "the cursor wraps";
}

TEST(axmNodeList, list_that_grows_under_the_cursor_is_followed)
{
  TestList list(1);
  EXPECT_TRUE(++list);
  list.items.push_back(std::make_shared<TestElement>());
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(1));
  EXPECT_FALSE(++list);
  list.items.push_back(std::make_shared<TestElement>());
  EXPECT_FALSE(list.invalid()) << "the cursor stands where the new item is";
  EXPECT_EQ(list(), list.at(2));
  EXPECT_FALSE(++list);
}

TEST(axmNodeList, list_that_shrinks_to_the_cursor_is_at_its_end)
{
  TestList list(3);
  ++list;
  ++list;
  list.items.pop_back();
  list.items.pop_back();
  EXPECT_TRUE(list.invalid());
  EXPECT_TRUE(++list) << "the cursor stood past the end";
  EXPECT_EQ(list(), list.at(0));
}

TEST(axmNodeList, list_that_shrinks_below_the_cursor_has_no_next_item_until_reset)
{
  TestList list(3);
  for (int i = 0; i < 3; ++i)
    ++list;
  list.items.resize(1);
  for (int i = 0; i < 5; ++i)
    EXPECT_FALSE(++list);
  list.reset();
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(0));
}

TEST(axmNodeList, list_that_becomes_empty_and_full_again_is_followed)
{
  TestList list(1);
  ++list;
  list.items.clear();
  EXPECT_TRUE(list.isEmpty());
  EXPECT_TRUE(list.invalid());
  EXPECT_EQ(list.next_node(), nullptr);
  list.reset();
  list.items.push_back(std::make_shared<TestElement>());
  EXPECT_EQ(list.next_node(), list.at(0));
}

TEST(axmNodeList, cursor_that_cannot_go_on_starts_again)
{
  TestList list(1);
  list.*private_member(Cursor()) = INT_MAX;
  EXPECT_TRUE(++list);
  EXPECT_EQ(list(), list.at(0));
}
