#include <coPageArr.h>

#include "Counted.h"

#include <coPrg.h>

#include <climits>
#include <gtest/gtest.h>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <vector>

namespace
{
using Owner = coPrg<Counted>;
using Owners = coPageArr<Owner>;

// Opens what derived classes may use.
template <class T>
class Opened : public coPageArr<T>
{
public:
  using coPageArr<T>::coPageArr;
  using coPageArr<T>::get_block;
  using coPageArr<T>::switch_block;
};

struct coPageArrTest : testing::Test
{
  ~coPageArrTest() override { EXPECT_EQ(Counted::alive, 0); }

  static void fill(Owners& owners, int count)
  {
    for (int i = 0; i < count; ++i)
      owners[i] = new Counted(i);
  }
};

using Values = std::vector<int>;

// The numbers of the objects held, -1 for an empty owner.
Values values(Owners const& owners)
{
  Values result;
  for (int i = 0; i < owners.count(); ++i)
    result.push_back(owners[i] ? owners[i]->value : -1);
  return result;
}

Values values(coPageArr<int> const& array)
{
  Values result;
  for (int i = 0; i < array.count(); ++i)
    result.push_back(array[i]);
  return result;
}
}

TEST_F(coPageArrTest, default_constructed_has_count_0_and_no_pages_of_256)
{
  Owners const owners;
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 0);
  EXPECT_EQ(owners.page_size(), 256);
}

TEST_F(coPageArrTest, indexing_element_0_allocates_one_page_and_makes_the_count_1)
{
  Owners owners;
  EXPECT_FALSE(owners[0]);
  EXPECT_EQ(owners.count(), 1);
  EXPECT_EQ(owners.pages(), 1);
}

TEST_F(coPageArrTest, indexing_element_256_allocates_the_second_page)
{
  Owners owners;
  owners[255];
  EXPECT_EQ(owners.pages(), 1);
  EXPECT_EQ(owners.count(), 256);
  owners[256];
  EXPECT_EQ(owners.pages(), 2);
  EXPECT_EQ(owners.count(), 257);
}

TEST_F(coPageArrTest, indexing_far_beyond_the_count_allocates_every_page_up_to_there)
{
  Owners owners;
  owners[1000] = new Counted(1000);
  EXPECT_EQ(owners.count(), 1001);
  EXPECT_EQ(owners.pages(), 4);
  for (int i = 0; i < 1000; ++i)
    ASSERT_FALSE(owners[i]);
}

TEST_F(coPageArrTest, indexing_below_the_count_changes_neither_count_nor_pages)
{
  Owners owners;
  fill(owners, 300);
  EXPECT_EQ(owners[7]->value, 7);
  EXPECT_EQ(owners.count(), 300);
  EXPECT_EQ(owners.pages(), 2);
}

TEST_F(coPageArrTest, index_that_no_count_can_hold_is_refused)
{
  coPageArr<char> array(30, 5, 10);
  EXPECT_THROW(array[INT_MAX], std::bad_alloc);
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.pages(), 0);
}

TEST_F(coPageArrTest, page_shift_sets_the_page_size_and_the_nearest_possible_one_is_taken)
{
  EXPECT_EQ(coPageArr<int>(0, 5, 10).page_size(), 1);
  EXPECT_EQ(coPageArr<int>(4, 5, 10).page_size(), 16);
  EXPECT_EQ(coPageArr<int>(30, 5, 10).page_size(), 1 << 30);
  EXPECT_EQ(coPageArr<int>(31, 5, 10).page_size(), 1 << 30);
  EXPECT_EQ(coPageArr<int>(INT_MAX, 5, 10).page_size(), 1 << 30);
  EXPECT_EQ(coPageArr<int>(-1, 5, 10).page_size(), 1);
  EXPECT_EQ(coPageArr<int>(INT_MIN, 5, 10).page_size(), 1);
}

TEST_F(coPageArrTest, pages_of_one_element_work_as_others_do)
{
  Owners owners(0, 0, 0);
  fill(owners, 5);
  EXPECT_EQ(owners.pages(), 5);
  EXPECT_EQ(values(owners), (Values{0, 1, 2, 3, 4}));
}

TEST_F(coPageArrTest, addresses_are_stable_while_the_array_grows)
{
  Owners owners(2, 1, 1);
  std::vector<Owner*> addresses;
  for (int i = 0; i < 1000; ++i)
    addresses.push_back(&owners[i]);
  for (int i = 0; i < 1000; ++i)
    ASSERT_EQ(&owners[i], addresses[static_cast<std::size_t>(i)]);
}

TEST_F(coPageArrTest, new_elements_of_a_plain_type_are_zero)
{
  coPageArr<int> array(2, 5, 10);
  EXPECT_EQ(array[3], 0);
  EXPECT_EQ(array[2], 0);
}

TEST_F(coPageArrTest, storing_into_a_slot_that_holds_an_object_deletes_it_first)
{
  Owners owners;
  owners[0] = new Counted(1);
  owners[0] = new Counted(2);
  EXPECT_EQ(Counted::alive, 1);
  EXPECT_EQ(owners[0]->value, 2);
}

TEST_F(coPageArrTest, destructor_deletes_what_is_held_below_and_above_the_count)
{
  {
    Owners owners;
    fill(owners, 600);
    owners.shrink(10, 0);
    EXPECT_EQ(Counted::alive, 600);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST_F(coPageArrTest, shrink_with_flag_0_lowers_the_count_and_keeps_the_objects_above_it)
{
  Owners owners;
  fill(owners, 300);
  owners.shrink(0, 0);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 2);
  EXPECT_EQ(Counted::alive, 300);

  // The slot comes back into use as it was left, and storing into it deletes what it held.
  EXPECT_EQ(owners[0]->value, 0);
  EXPECT_EQ(owners.count(), 1);
  owners[1] = new Counted(100);
  EXPECT_EQ(Counted::alive, 300);
  EXPECT_EQ(owners[1]->value, 100);
}

TEST_F(coPageArrTest, shrink_with_flag_0_to_the_count_or_more_changes_nothing)
{
  Owners owners;
  fill(owners, 3);
  owners.shrink(3, 0);
  owners.shrink(4, 0);
  owners.shrink(INT_MAX, 0);
  EXPECT_EQ(values(owners), (Values{0, 1, 2}));
}

TEST_F(coPageArrTest, shrink_with_flag_1_destroys_the_pages_beyond_the_last_one_needed)
{
  Owners owners(2, 5, 10);
  fill(owners, 10);
  owners.shrink(5, 1);
  EXPECT_EQ(owners.count(), 5);
  EXPECT_EQ(owners.pages(), 2);
  EXPECT_EQ(Counted::alive, 8);
  owners.shrink(4, 1);
  EXPECT_EQ(owners.pages(), 1);
  EXPECT_EQ(Counted::alive, 4);
  EXPECT_EQ(values(owners), (Values{0, 1, 2, 3}));
  owners.shrink(0, 1);
  EXPECT_EQ(owners.pages(), 0);
  EXPECT_EQ(Counted::alive, 0);
  fill(owners, 5);
  EXPECT_EQ(values(owners), (Values{0, 1, 2, 3, 4}));
}

TEST_F(coPageArrTest, shrink_with_flag_1_to_more_than_the_count_keeps_the_pages_needed_for_that)
{
  Owners owners(2, 5, 10);
  fill(owners, 12);
  owners.shrink(1, 0);
  owners.shrink(6, 1);
  EXPECT_EQ(owners.count(), 1);
  EXPECT_EQ(owners.pages(), 2);
  owners.shrink(INT_MAX, 1);
  EXPECT_EQ(owners.pages(), 2);
}

TEST_F(coPageArrTest, shrink_to_a_negative_number_counts_as_0)
{
  Owners owners;
  fill(owners, 3);
  owners.shrink(-1, 0);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 1);
  owners.shrink(INT_MIN, 1);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 0);
}

TEST_F(coPageArrTest, clear_with_flag_0_keeps_everything_but_the_count)
{
  Owners owners;
  fill(owners, 300);
  owners.clear(0);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 2);
  EXPECT_EQ(Counted::alive, 300);
}

TEST_F(coPageArrTest, clear_with_flag_1_destroys_every_page)
{
  Owners owners;
  fill(owners, 300);
  owners.shrink(1, 0);
  owners.clear(1);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.pages(), 0);
  EXPECT_EQ(Counted::alive, 0);
  owners.clear(1);
  fill(owners, 2);
  EXPECT_EQ(values(owners), (Values{0, 1}));
}

TEST_F(coPageArrTest, repaginate_of_an_array_of_a_page_or_more_returns_0_and_changes_nothing)
{
  Owners owners(2, 5, 10);
  fill(owners, 20);
  owners.shrink(4, 0);
  EXPECT_EQ(owners.repaginate(), 0);
  EXPECT_EQ(owners.pages(), 5);
  EXPECT_EQ(owners.page_size(), 4);
  EXPECT_EQ(Counted::alive, 20);
  EXPECT_EQ(owners[3]->value, 3);
}

TEST_F(coPageArrTest, repaginate_takes_the_smallest_page_that_holds_the_count)
{
  struct Case
  {
    int count;
    int page_size;
  };
  for (Case const expected : {Case{0, 1}, {1, 1}, {2, 2}, {3, 4}, {4, 4}, {5, 8}, {8, 8}, {9, 16}, {15, 16}})
  {
    Owners owners(4, 5, 10);
    fill(owners, 40);
    owners.shrink(expected.count, 0);
    EXPECT_EQ(owners.repaginate(), 3 * 16 - expected.page_size) << expected.count;
    EXPECT_EQ(owners.pages(), 1);
    EXPECT_EQ(owners.page_size(), expected.page_size);
    EXPECT_EQ(owners.count(), expected.count);
    for (int i = 0; i < expected.count; ++i)
      EXPECT_EQ(owners[i]->value, i);
  }
}

TEST_F(coPageArrTest, repaginate_to_a_smaller_page_moves_the_owners_and_deletes_what_is_above_the_count)
{
  Owners owners;
  fill(owners, 10);
  Counted const* const object = owners[2].get();
  owners.shrink(3, 0);
  EXPECT_EQ(owners.repaginate(), 256 - 4);
  EXPECT_EQ(owners[2].get(), object);
  EXPECT_EQ(Counted::alive, 3);
}

TEST_F(coPageArrTest, repaginate_that_keeps_the_page_size_frees_the_other_pages_and_keeps_the_first)
{
  Owners owners(2, 5, 10);
  fill(owners, 12);
  Owner const* const address = &owners[0];
  owners.shrink(3, 0);
  EXPECT_EQ(owners.repaginate(), 3 * 4 - 4);
  EXPECT_EQ(owners.pages(), 1);
  EXPECT_EQ(owners.page_size(), 4);
  EXPECT_EQ(&owners[0], address);
  EXPECT_EQ(Counted::alive, 4) << "the slots of the page kept hold what they held";
}

TEST_F(coPageArrTest, repaginate_of_one_page_that_fits_gives_nothing_up)
{
  Owners owners(2, 5, 10);
  fill(owners, 3);
  EXPECT_EQ(owners.repaginate(), 0);
  EXPECT_EQ(values(owners), (Values{0, 1, 2}));
}

TEST_F(coPageArrTest, repaginate_of_an_array_without_pages_returns_a_negative_number)
{
  Owners owners;
  EXPECT_EQ(owners.repaginate(), -1);
  EXPECT_EQ(owners.pages(), 1);
  EXPECT_EQ(owners.page_size(), 1);

  Owners smallest(0, 5, 10);
  EXPECT_EQ(smallest.repaginate(), -1);
  EXPECT_EQ(smallest.pages(), 0);
}

TEST_F(coPageArrTest, repaginated_array_grows_on_in_its_new_pages)
{
  Owners owners;
  fill(owners, 2);
  owners.repaginate();
  Owner const* const address = &owners[1];
  for (int i = 2; i < 20; ++i)
    owners[i] = new Counted(i);
  EXPECT_EQ(owners.pages(), 10);
  EXPECT_EQ(&owners[1], address);
  EXPECT_EQ(owners[19]->value, 19);
}

TEST_F(coPageArrTest, initializer_list_fills_the_array_in_order)
{
  coPageArr<int> const numbers{3, 1, 2};
  EXPECT_EQ(values(numbers), (Values{3, 1, 2}));
  EXPECT_EQ(numbers.page_size(), 256);
  EXPECT_EQ(numbers.pages(), 1);

  Owners const owners{new Counted(5), new Counted(6)};
  EXPECT_EQ(values(owners), (Values{5, 6}));
  EXPECT_EQ(Counted::alive, 2);

  coPageArr<int> const none(std::initializer_list<int>{});
  EXPECT_EQ(none.count(), 0);
  EXPECT_EQ(none.pages(), 0);
}

TEST_F(coPageArrTest, copying_constructor_copies_what_can_be_copied)
{
  coPageArr<int> source(1, 5, 10);
  for (int i = 0; i < 5; ++i)
    source[i] = i;
  coPageArr<int> copy(utCopy(), source);
  EXPECT_EQ(values(copy), values(source));
  EXPECT_EQ(copy.page_size(), 2);
  copy[0] = 9;
  EXPECT_EQ(source[0], 0);
}

TEST_F(coPageArrTest, copying_constructor_takes_over_what_sole_owners_hold)
{
  Owners source;
  fill(source, 3);
  Owners const copy(utCopy(), source);
  EXPECT_EQ(values(copy), (Values{0, 1, 2}));
  EXPECT_EQ(values(source), (Values{-1, -1, -1}));
  EXPECT_EQ(Counted::alive, 3);
}

TEST_F(coPageArrTest, become_takes_the_length_and_the_elements_of_the_other_array)
{
  Owners target(1, 5, 10);
  fill(target, 5);
  Owners source;
  source[0] = new Counted(70);
  source[1] = new Counted(71);
  target.become(utCopy(), source);
  EXPECT_EQ(values(target), (Values{70, 71}));
  EXPECT_EQ(target.page_size(), 2);
  EXPECT_EQ(Counted::alive, 5) << "two new ones, three above the count";

  Owners longer;
  fill(longer, 9);
  target.become(utCopy(), longer);
  EXPECT_EQ(values(target), (Values{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(coPageArrTest, become_of_itself_keeps_everything)
{
  Owners owners;
  fill(owners, 3);
  owners.become(utCopy(), owners);
  EXPECT_EQ(values(owners), (Values{0, 1, 2}));
}

TEST_F(coPageArrTest, become_of_an_empty_array_is_empty)
{
  Owners owners;
  fill(owners, 3);
  Owners none;
  owners.become(utCopy(), none);
  EXPECT_EQ(owners.count(), 0);
}

TEST_F(coPageArrTest, copy_moves_a_range_up_over_itself)
{
  coPageArr<int> array{0, 1, 2, 3, 4};
  array.copy(0, 2, 3);
  EXPECT_EQ(values(array), (Values{0, 1, 0, 1, 2}));
}

TEST_F(coPageArrTest, copy_moves_a_range_down_over_itself)
{
  coPageArr<int> array{0, 1, 2, 3, 4};
  array.copy(2, 0, 3);
  EXPECT_EQ(values(array), (Values{2, 3, 4, 3, 4}));
}

TEST_F(coPageArrTest, copy_onto_itself_keeps_the_range)
{
  Owners owners;
  fill(owners, 3);
  owners.copy(1, 1, 2);
  EXPECT_EQ(values(owners), (Values{0, 1, 2}));
}

TEST_F(coPageArrTest, copy_beyond_the_count_extends_the_array_across_pages)
{
  coPageArr<int> array(1, 5, 10);
  for (int i = 0; i < 3; ++i)
    array[i] = i + 1;
  array.copy(0, 4, 3);
  EXPECT_EQ(values(array), (Values{1, 2, 3, 0, 1, 2, 3}));
  EXPECT_EQ(array.pages(), 4);
}

TEST_F(coPageArrTest, copy_of_sole_owners_moves_what_they_hold)
{
  Owners owners;
  fill(owners, 4);
  owners.copy(0, 1, 3);
  EXPECT_EQ(values(owners), (Values{-1, 0, 1, 2}));
  EXPECT_EQ(Counted::alive, 3);
}

TEST_F(coPageArrTest, copy_of_nothing_changes_nothing)
{
  coPageArr<int> array{1, 2};
  array.copy(0, 100, 0);
  array.copy(2, 0, 0);
  array.copyin(nullptr, 100, 0);
  EXPECT_EQ(values(array), (Values{1, 2}));
}

TEST_F(coPageArrTest, copy_to_where_no_index_is_is_refused_and_changes_nothing)
{
  coPageArr<int> array{1, 2};
  EXPECT_THROW(array.copy(0, INT_MAX - 1, 2), std::bad_alloc);
  int const source[2] = {3, 4};
  EXPECT_THROW(array.copyin(const_cast<int*>(source), INT_MAX, 2), std::bad_alloc);
  EXPECT_EQ(values(array), (Values{1, 2}));
}

TEST_F(coPageArrTest, copyin_takes_elements_from_outside_and_extends_the_array)
{
  coPageArr<int> array(1, 5, 10);
  array[0] = 9;
  int source[] = {1, 2, 3};
  array.copyin(source, 1, 3);
  EXPECT_EQ(values(array), (Values{9, 1, 2, 3}));
  array.copyin(source, 0, 1);
  EXPECT_EQ(values(array), (Values{1, 1, 2, 3}));

  Owners owners;
  Owner single(new Counted(4));
  owners.copyin(&single, 0, 1);
  EXPECT_FALSE(single);
  EXPECT_EQ(values(owners), (Values{4}));
}

TEST_F(coPageArrTest, copyout_hands_elements_out)
{
  coPageArr<int> array{1, 2, 3};
  int target[2] = {};
  array.copyout(1, target, 2);
  EXPECT_EQ(target[0], 2);
  EXPECT_EQ(target[1], 3);
  EXPECT_EQ(values(array), (Values{1, 2, 3}));

  Owners owners;
  fill(owners, 2);
  Owner taken[1];
  owners.copyout(1, taken, 1);
  EXPECT_EQ(taken[0]->value, 1);
  EXPECT_EQ(values(owners), (Values{0, -1}));
}

TEST_F(coPageArrTest, reverse_turns_a_range_around)
{
  coPageArr<int> array(1, 5, 10);
  for (int i = 0; i < 6; ++i)
    array[i] = i;
  array.reverse(1, 4);
  EXPECT_EQ(values(array), (Values{0, 4, 3, 2, 1, 5}));
  array.reverse(0, 3);
  EXPECT_EQ(values(array), (Values{3, 4, 0, 2, 1, 5}));
  array.reverse(2, 1);
  array.reverse(6, 0);
  EXPECT_EQ(values(array), (Values{3, 4, 0, 2, 1, 5}));

  Owners owners;
  fill(owners, 3);
  owners.reverse(0, 3);
  EXPECT_EQ(values(owners), (Values{2, 1, 0}));
  EXPECT_EQ(Counted::alive, 3);
}

TEST_F(coPageArrTest, get_block_makes_a_page_and_those_before_it_and_leaves_the_count)
{
  Opened<Owner> owners(2, 5, 10);
  EXPECT_EQ(owners.get_block(2), 1);
  EXPECT_EQ(owners.pages(), 3);
  EXPECT_EQ(owners.count(), 0);
  EXPECT_EQ(owners.get_block(0), 1);
  EXPECT_EQ(owners.pages(), 3);
  owners.switch_block(1);
  EXPECT_EQ(owners.pages(), 3);
}

TEST_F(coPageArrTest, cannot_be_copied_without_saying_so)
{
  EXPECT_FALSE(std::is_copy_constructible_v<Owners>);
  EXPECT_FALSE(std::is_copy_assignable_v<Owners>);
}
