#include <utStringcoPageArr.h>

#include <gtest/gtest.h>

TEST(utStringcoPageArr, is_a_growing_list_of_texts)
{
  utStringcoPageArr texts;
  for (int i = 0; i < 1000; ++i)
    texts[texts.count()] = utString("text");
  EXPECT_EQ(texts.count(), 1000);
  EXPECT_EQ(texts[999], utString("text"));
}

TEST(utStringcoPageArr, copies_share_the_texts_and_leave_the_source)
{
  utStringcoPageArr source{"one", "a text that is long enough to be shared by its copies"};
  utStringcoPageArr copy(utCopy(), source);
  EXPECT_EQ(copy.count(), 2);
  EXPECT_EQ(copy[1].c_str(), source[1].c_str());
  EXPECT_EQ(source[1], utString("a text that is long enough to be shared by its copies"));
}

TEST(utStringcoPageArr, repaginates_and_turns_around)
{
  utStringcoPageArr texts{"one", "two", "three"};
  EXPECT_EQ(texts.repaginate(), 252);
  texts.reverse(0, 3);
  EXPECT_EQ(texts[0], utString("three"));
  EXPECT_EQ(texts[2], utString("one"));
}
