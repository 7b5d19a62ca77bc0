#include <coDynArr.h>

#include <charcoDynArr.h>
#include <utAnycoPageArrINTERNALcoDynArr.h>

#include <climits>
#include <cstdint>
#include <gtest/gtest.h>
#include <type_traits>

// The sanitizers end a program that asks for more memory than there is, unless told that this is meant.
extern "C" char const* __asan_default_options()
{
  return "allocator_may_return_null=1";
}

extern "C" char const* __tsan_default_options()
{
  return "allocator_may_return_null=1";
}

namespace
{
// So large that an array of very many of them is not to be had.
struct Large
{
  char bytes[1 << 20];
};
}

TEST(coDynArr, default_constructed_holds_and_allocates_nothing)
{
  charcoDynArr const array;
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.capacity(), 0);
  EXPECT_EQ(array.data(), nullptr);
}

TEST(coDynArr, expand_makes_room_and_leaves_the_count)
{
  charcoDynArr array;
  EXPECT_TRUE(array.expand(10));
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.capacity(), 10);
  EXPECT_NE(array.data(), nullptr);
  EXPECT_TRUE(array.expand(5));
  EXPECT_EQ(array.capacity(), 10);
  EXPECT_TRUE(array.expand(11));
  EXPECT_EQ(array.capacity(), 11);
}

TEST(coDynArr, expand_to_nothing_succeeds_and_allocates_nothing)
{
  charcoDynArr array;
  EXPECT_TRUE(array.expand(0));
  EXPECT_EQ(array.data(), nullptr);
}

TEST(coDynArr, room_beyond_the_count_can_be_written_and_keeps_its_values)
{
  charcoDynArr array;
  ASSERT_TRUE(array.expand(3));
  array[0] = 'a';
  array[2] = 'c';
  ASSERT_TRUE(array.set_count(3));
  EXPECT_EQ(array.data()[0], 'a');
  EXPECT_EQ(static_cast<charcoDynArr const&>(array)[2], 'c');
}

TEST(coDynArr, negative_numbers_are_refused)
{
  charcoDynArr array;
  ASSERT_TRUE(array.set_count(2));
  EXPECT_FALSE(array.expand(-1));
  EXPECT_FALSE(array.expand(INT_MIN));
  EXPECT_FALSE(array.set_count(-1));
  EXPECT_EQ(array.count(), 2);
  EXPECT_EQ(array.capacity(), 2);
}

TEST(coDynArr, set_count_grows_by_half_so_that_appending_stays_linear)
{
  coDynArr<int> array;
  int moves = 0;
  for (int i = 0; i < 100000; ++i)
  {
    int const room = array.capacity();
    ASSERT_TRUE(array.append(i));
    if (array.capacity() != room)
      ++moves;
    ASSERT_GE(array.capacity(), room);
  }
  EXPECT_LT(moves, 40);
  EXPECT_EQ(array.count(), 100000);
  for (int i = 0; i < 100000; ++i)
    ASSERT_EQ(array[i], i);
}

TEST(coDynArr, append_of_an_own_value_that_moves_appends_it)
{
  coDynArr<int> array;
  ASSERT_TRUE(array.append(42));
  for (int i = 0; i < 100; ++i)
    ASSERT_TRUE(array.append(array[0]));
  EXPECT_EQ(array[100], 42);
}

TEST(coDynArr, first_capacity_and_least_growth_are_kept_to)
{
  utAnycoPageArrINTERNALcoDynArr array(5, 10);
  ASSERT_TRUE(array.append(nullptr));
  EXPECT_EQ(array.capacity(), 10);
  ASSERT_TRUE(array.set_count(11));
  EXPECT_EQ(array.capacity(), 20);
  ASSERT_TRUE(array.set_count(21));
  EXPECT_EQ(array.capacity(), 30);
  ASSERT_TRUE(array.set_count(31));
  EXPECT_EQ(array.capacity(), 45);

  utAnycoPageArrINTERNALcoDynArr roomy(50, 1);
  ASSERT_TRUE(roomy.append(nullptr));
  EXPECT_EQ(roomy.capacity(), 50);
}

TEST(coDynArr, negative_growth_counts_as_none)
{
  coDynArr<char> array(INT_MIN, -1);
  ASSERT_TRUE(array.append('a'));
  EXPECT_EQ(array.capacity(), 1);
  ASSERT_TRUE(array.append('b'));
  EXPECT_EQ(array[1], 'b');
}

TEST(coDynArr, huge_first_capacity_does_not_keep_it_from_growing)
{
  coDynArr<Large> array(INT_MAX, INT_MAX);
  ASSERT_TRUE(array.set_count(1));
  EXPECT_EQ(array.capacity(), 1);
  ASSERT_TRUE(array.set_count(2));
  EXPECT_EQ(array.capacity(), 2);
}

TEST(coDynArr, a_size_that_no_number_says_is_a_result_and_changes_nothing)
{
  struct Page
  {
    char bytes[SIZE_MAX / INT_MAX * 4];
  };
  coDynArr<Page> array;
  EXPECT_FALSE(array.set_count(INT_MAX / 2));
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.capacity(), 0);
}

TEST(coDynArr, room_that_is_not_to_be_had_is_a_result_and_changes_nothing)
{
  coDynArr<Large> array;
  ASSERT_TRUE(array.set_count(1));
  array[0].bytes[0] = 'x';
  EXPECT_FALSE(array.expand(INT_MAX));
  EXPECT_FALSE(array.set_count(INT_MAX));
  EXPECT_EQ(array.count(), 1);
  EXPECT_EQ(array.capacity(), 1);
  EXPECT_EQ(array[0].bytes[0], 'x');
}

TEST(coDynArr, shrink_without_freeing_lowers_the_count_only)
{
  charcoDynArr array;
  ASSERT_TRUE(array.set_count(10));
  array.shrink(4, 0);
  EXPECT_EQ(array.count(), 4);
  EXPECT_EQ(array.capacity(), 10);
  array.shrink(7, 0);
  EXPECT_EQ(array.count(), 4);
  array.shrink(-1, 0);
  EXPECT_EQ(array.count(), 0);
}

TEST(coDynArr, shrink_with_freeing_gives_the_room_back_and_keeps_the_values)
{
  charcoDynArr array;
  ASSERT_TRUE(array.set_count(10));
  array[3] = 'd';
  array.shrink(4, 1);
  EXPECT_EQ(array.count(), 4);
  EXPECT_EQ(array.capacity(), 4);
  EXPECT_EQ(array[3], 'd');
  array.shrink(9, 1);
  EXPECT_EQ(array.count(), 4);
  array.shrink(0, 1);
  EXPECT_EQ(array.capacity(), 0);
  EXPECT_EQ(array.data(), nullptr);
}

TEST(coDynArr, clear_keeps_or_frees_the_block)
{
  charcoDynArr array;
  ASSERT_TRUE(array.set_count(10));
  array.clear(0);
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.capacity(), 10);
  array.clear(1);
  EXPECT_EQ(array.capacity(), 0);
  EXPECT_EQ(array.data(), nullptr);
  EXPECT_TRUE(array.append('a'));
}

TEST(coDynArr, cannot_be_copied)
{
  EXPECT_FALSE(std::is_copy_constructible_v<charcoDynArr>);
  EXPECT_FALSE(std::is_copy_assignable_v<charcoDynArr>);
}
