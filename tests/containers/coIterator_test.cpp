#include <coIterator.h>
#include <coPageArr.h>

#include <gtest/gtest.h>
#include <vector>

namespace
{
using Array = coPageArr<int>;
using Iterator = coIterator<Array>;

std::vector<int> walked(Iterator& iterator)
{
  std::vector<int> result;
  for (bool more = iterator.do_first(); more; more = iterator.do_next())
    result.push_back(iterator());
  return result;
}
}

TEST(coIterator, walks_all_indices_in_order)
{
  Array array(2, 5, 10);
  for (int i = 0; i < 10; ++i)
    array[i] = 10 * i;
  Iterator iterator(array);
  EXPECT_EQ(walked(iterator), (std::vector<int>{0, 10, 20, 30, 40, 50, 60, 70, 80, 90}));
  EXPECT_TRUE(iterator.invalid());
}

TEST(coIterator, stands_before_the_first_element_at_the_start_and_after_reset)
{
  Array array{1, 2};
  Iterator iterator(array);
  EXPECT_TRUE(iterator.invalid());
  EXPECT_EQ(iterator.index(), -1);
  EXPECT_TRUE(iterator.do_next());
  EXPECT_EQ(iterator.index(), 0);
  EXPECT_EQ(iterator(), 1);
  iterator.reset();
  EXPECT_TRUE(iterator.invalid());
  EXPECT_TRUE(iterator.do_next());
  EXPECT_EQ(iterator(), 1);
}

TEST(coIterator, do_first_starts_again_from_anywhere)
{
  Array array{1, 2, 3};
  Iterator iterator(array);
  iterator.do_first();
  iterator.do_next();
  EXPECT_TRUE(iterator.do_first());
  EXPECT_EQ(iterator.index(), 0);
}

TEST(coIterator, of_an_empty_array_finds_nothing)
{
  Array array;
  Iterator iterator(array);
  EXPECT_FALSE(iterator.do_first());
  EXPECT_FALSE(iterator.do_next());
  EXPECT_TRUE(iterator.invalid());
}

TEST(coIterator, stays_after_the_last_element_however_often_it_is_moved)
{
  Array array{1};
  Iterator iterator(array);
  EXPECT_TRUE(iterator.do_first());
  for (int i = 0; i < 3; ++i)
  {
    EXPECT_FALSE(iterator.do_next());
    EXPECT_EQ(iterator.index(), 1);
  }
}

TEST(coIterator, follows_an_array_that_changes)
{
  Array array{1, 2};
  Iterator iterator(array);
  iterator.do_first();
  array[2] = 3;
  EXPECT_TRUE(iterator.do_next());
  EXPECT_TRUE(iterator.do_next());
  EXPECT_EQ(iterator(), 3);
  array.shrink(1, 0);
  EXPECT_TRUE(iterator.invalid());
  EXPECT_FALSE(iterator.do_next());
}

TEST(coIterator, gives_access_to_the_element_itself)
{
  Array array{1};
  Iterator iterator(array);
  iterator.do_first();
  iterator() = 5;
  EXPECT_EQ(array[0], 5);
}
