// The containers when memory runs out.

#include <charcoDynArr.h>
#include <coPageArr.h>
#include <coPrf.h>
#include <coPrg.h>
#include <coSharedText.h>
#include <coText.h>

#include "../FailingMemory.h"
#include "Counted.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <new>

namespace
{
using Owners = coPageArr<coPrg<Counted>>;

class Opened : public Owners
{
public:
  Opened() : Owners(1, 1, 1) {}
  using Owners::get_block;
};

void expect_nothing_held(bool, long held)
{
  EXPECT_EQ(held, 0);
}
}

TEST(failing_memory, refuses_every_allocation_after_those_allowed)
{
  void* first = nullptr;
  void* second = nullptr;
  bool threw = false;
  long held = 0;
  bool failed = false;
  {
    FailingMemory const memory(1);
    first = std::malloc(8);
    second = std::malloc(8);
    try
    {
      ::operator delete(::operator new(8));
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
    held = memory.blocks_held();
    failed = memory.has_failed();
  }
  EXPECT_NE(first, nullptr);
  EXPECT_EQ(second, nullptr);
  EXPECT_TRUE(threw);
  EXPECT_TRUE(failed);
  EXPECT_EQ(held, 1);
  std::free(first);
}

TEST(coDynArr_memory, growing_fails_as_a_result_and_changes_nothing)
{
  charcoDynArr array;
  ASSERT_TRUE(array.append('a'));
  bool results[4] = {};
  {
    FailingMemory const memory(0);
    results[0] = array.append('b');
    results[1] = array.expand(100);
    results[2] = array.set_count(100);
    results[3] = array.set_count(1);
    array.shrink(0, 0);
  }
  EXPECT_FALSE(results[0]);
  EXPECT_FALSE(results[1]);
  EXPECT_FALSE(results[2]);
  EXPECT_TRUE(results[3]);
  EXPECT_EQ(array.capacity(), 1);
  EXPECT_EQ(array[0], 'a');
}

TEST(coDynArr_memory, shrinking_that_cannot_move_the_block_keeps_it)
{
  charcoDynArr array;
  ASSERT_TRUE(array.set_count(100));
  array[0] = 'a';
  {
    FailingMemory const memory(0);
    array.shrink(1, 1);
  }
  EXPECT_EQ(array.count(), 1);
  EXPECT_EQ(array.capacity(), 100);
  EXPECT_EQ(array[0], 'a');
}

TEST(coPageArr_memory, get_block_returns_0_at_every_failing_allocation_and_keeps_the_pages_made)
{
  bool consistent = true;
  int const failures = with_every_failure(
    [&]
    {
      Opened owners;
      bool const made = owners.get_block(2) == 1;
      consistent = consistent && owners.count() == 0 && (made ? owners.pages() == 3 : owners.pages() < 3);
    },
    expect_nothing_held);
  EXPECT_EQ(failures, 4) << "the directory and three pages";
  EXPECT_TRUE(consistent);
}

TEST(coPageArr_memory, get_block_tells_failure_from_success)
{
  Opened owners;
  int refused = -1;
  int made = -1;
  {
    FailingMemory const memory(0);
    refused = owners.get_block(0);
  }
  EXPECT_EQ(refused, 0);
  {
    FailingMemory const memory(2);
    made = owners.get_block(0);
  }
  EXPECT_EQ(made, 1);
  EXPECT_EQ(owners.pages(), 1);
}

TEST(coPageArr_memory, indexing_throws_and_leaves_the_array_as_it_was)
{
  {
    Owners owners(1, 1, 1);
    owners[0] = new Counted(1);
    owners[1] = new Counted(2);
    bool threw = false;
    {
      FailingMemory const memory(0);
      try
      {
        owners[2];
      }
      catch (std::bad_alloc const&)
      {
        threw = true;
      }
    }
    EXPECT_TRUE(threw);
    EXPECT_EQ(owners.count(), 2);
    EXPECT_EQ(owners.pages(), 1);
    EXPECT_EQ(owners[0]->value, 1);
    owners[2] = new Counted(3);
    EXPECT_EQ(owners.count(), 3);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST(coPageArr_memory, repaginate_returns_0_and_leaves_the_array_as_it_was)
{
  {
    Owners owners;
    owners[0] = new Counted(1);
    int given_up = -1;
    {
      FailingMemory const memory(0);
      given_up = owners.repaginate();
    }
    EXPECT_EQ(given_up, 0);
    EXPECT_EQ(owners.page_size(), 256);
    EXPECT_EQ(owners[0]->value, 1);
    EXPECT_EQ(owners.repaginate(), 255);
  }
  EXPECT_EQ(Counted::alive, 0);

  Owners empty;
  int given_up = -1;
  {
    FailingMemory const memory(1);
    given_up = empty.repaginate();
  }
  EXPECT_EQ(given_up, 0);
  EXPECT_EQ(empty.pages(), 0);
}

TEST(coPageArr_memory, shrinking_and_clearing_need_none)
{
  Owners owners(1, 1, 1);
  for (int i = 0; i < 100; ++i)
    owners[i] = new Counted(i);
  {
    FailingMemory const memory(0);
    owners.shrink(3, 1);
  }
  EXPECT_EQ(owners.count(), 3);
  EXPECT_EQ(owners.pages(), 2);
  {
    FailingMemory const memory(0);
    owners.clear(1);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST(coPageArr_memory, copying_constructor_and_become_leak_nothing_and_take_nothing_when_they_fail)
{
  coPageArr<int> source(1, 1, 1);
  for (int i = 0; i < 7; ++i)
    source[i] = i;
  int const failures = with_every_failure(
    [&]
    {
      try
      {
        coPageArr<int> const copy(utCopy(), source);
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    expect_nothing_held);
  EXPECT_EQ(failures, 5);

  Owners owners(1, 1, 1);
  owners[0] = new Counted(1);
  Owners target(1, 1, 1);
  bool threw = false;
  {
    FailingMemory const memory(0);
    try
    {
      target.become(utCopy(), owners);
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
  }
  EXPECT_TRUE(threw);
  EXPECT_EQ(target.count(), 0);
  EXPECT_EQ(owners[0]->value, 1);
}

TEST(coPageArr_memory, copy_and_copyin_take_nothing_when_they_fail)
{
  Owners owners(0, 1, 1);
  owners[0] = new Counted(1);
  coPrg<Counted> other(new Counted(2));
  int threw = 0;
  {
    FailingMemory const memory(0);
    try
    {
      owners.copy(0, 5, 1);
    }
    catch (std::bad_alloc const&)
    {
      ++threw;
    }
    try
    {
      owners.copyin(&other, 5, 1);
    }
    catch (std::bad_alloc const&)
    {
      ++threw;
    }
  }
  EXPECT_EQ(threw, 2);
  EXPECT_EQ(owners.count(), 1);
  EXPECT_EQ(owners[0]->value, 1);
  EXPECT_EQ(other->value, 2);
}

TEST(coPageArr_memory, initializer_list_takes_no_object_when_it_fails)
{
  Counted* const object = new Counted(1);
  int const failures = with_every_failure(
    [&]
    {
      try
      {
        Owners owners{object};
        owners[0].release();
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    expect_nothing_held);
  EXPECT_EQ(failures, 2);
  EXPECT_EQ(Counted::alive, 1);
  delete object;
}

TEST(coPrf_memory, raw_pointer_is_deleted_and_an_external_one_left_alone)
{
  int const failures = with_every_failure(
    []
    {
      try
      {
        coPrf<Counted> const owner(new Counted(1));
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    expect_nothing_held);
  EXPECT_EQ(failures, 2) << "the object and its count";
  EXPECT_EQ(Counted::alive, 0);

  Counted object(2);
  bool threw = false;
  {
    FailingMemory const memory(0);
    try
    {
      coPrf<Counted> const owner(coPrfExtern(), &object);
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
  }
  EXPECT_TRUE(threw);
  EXPECT_EQ(Counted::alive, 1);
}

TEST(coText_memory, only_a_long_one_needs_it_and_throws_and_leaks_nothing)
{
  for (int length = 0; length < 6; ++length)
    EXPECT_EQ(with_every_failure(
                [length]
                {
                  try
                  {
                    coText<char, 15> const none;
                    coText<char, 15> const short_text(length, [=](char* to) { std::fill_n(to, length, 'x'); });
                    coText<char, 15> const text(16 + length, [=](char* to) { std::fill_n(to, 16 + length, 'x'); });
                    coText<char, 15> copy(text);
                    copy = short_text;
                    copy = none;
                  }
                  catch (std::bad_alloc const&)
                  {
                  }
                },
                expect_nothing_held),
      1);
}

TEST(coSharedText_memory, making_one_throws_and_leaks_nothing)
{
  EXPECT_EQ(with_every_failure(
              []
              {
                try
                {
                  coSharedText<char> const text(3);
                  coSharedText<char> const copy(text);
                }
                catch (std::bad_alloc const&)
                {
                }
              },
              expect_nothing_held),
    1);
}
