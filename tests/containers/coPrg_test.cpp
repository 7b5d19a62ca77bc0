#include <coPrg.h>

#include "Counted.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace
{
struct coPrgTest : testing::Test
{
  ~coPrgTest() override { EXPECT_EQ(Counted::alive, 0); }
};

// An object whose destructor looks at the owner that is destroying it.
struct Curious
{
  explicit Curious(coPrg<Curious>*& watched) : owner(watched) {}
  ~Curious() { owner_was_empty = owner->get() == nullptr; }

  coPrg<Curious>*& owner;
  inline static bool owner_was_empty = false;
};
}

TEST_F(coPrgTest, default_constructed_is_empty)
{
  coPrg<Counted> const owner;
  EXPECT_EQ(owner.get(), nullptr);
  EXPECT_FALSE(owner);
}

TEST_F(coPrgTest, constructed_from_a_pointer_owns_and_deletes_the_object)
{
  {
    coPrg<Counted> const owner(new Counted(7));
    EXPECT_TRUE(owner);
    EXPECT_EQ(owner->value, 7);
    EXPECT_EQ((*owner).value, 7);
    EXPECT_EQ(Counted::alive, 1);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST_F(coPrgTest, constructed_from_null_is_empty)
{
  coPrg<Counted> const owner(nullptr);
  EXPECT_FALSE(owner);
}

TEST_F(coPrgTest, become_deletes_the_old_object_and_holds_the_new_one)
{
  coPrg<Counted> owner(new Counted(1));
  owner.become(new Counted(2));
  EXPECT_EQ(owner->value, 2);
  EXPECT_EQ(Counted::alive, 1);
  owner.become(nullptr);
  EXPECT_FALSE(owner);
  EXPECT_EQ(Counted::alive, 0);
}

TEST_F(coPrgTest, become_of_a_pointer_to_const_takes_it_over)
{
  Counted const* const object = new Counted(3);
  coPrg<Counted> owner;
  owner.become(object);
  EXPECT_EQ(owner.get(), object);
}

TEST_F(coPrgTest, become_of_the_object_held_keeps_it)
{
  coPrg<Counted> owner(new Counted(4));
  owner.become(owner.get());
  ASSERT_EQ(Counted::alive, 1);
  EXPECT_EQ(owner->value, 4);
}

TEST_F(coPrgTest, assignment_of_a_pointer_does_as_become_does)
{
  coPrg<Counted> owner(new Counted(1));
  Counted const* const object = new Counted(2);
  EXPECT_EQ(&(owner = object), &owner);
  EXPECT_EQ(owner->value, 2);
  EXPECT_EQ(Counted::alive, 1);
}

TEST_F(coPrgTest, reset_deletes_the_object)
{
  coPrg<Counted> owner(new Counted);
  owner.reset();
  EXPECT_FALSE(owner);
  EXPECT_EQ(Counted::alive, 0);
  owner.reset();
  EXPECT_FALSE(owner);
}

TEST_F(coPrgTest, release_hands_the_object_out_without_deleting_it)
{
  coPrg<Counted> owner(new Counted(5));
  Counted* const object = owner.release();
  EXPECT_FALSE(owner);
  ASSERT_EQ(Counted::alive, 1);
  EXPECT_EQ(object->value, 5);
  delete object;
  EXPECT_EQ(owner.release(), nullptr);
}

TEST_F(coPrgTest, swap_exchanges_the_objects)
{
  coPrg<Counted> one(new Counted(1));
  coPrg<Counted> other;
  one.swap(other);
  EXPECT_FALSE(one);
  EXPECT_EQ(other->value, 1);
  other.swap(other);
  EXPECT_EQ(other->value, 1);
  EXPECT_EQ(Counted::alive, 1);
}

TEST_F(coPrgTest, a_destructor_finds_its_owner_empty)
{
  coPrg<Curious>* watched = nullptr;
  coPrg<Curious> owner(new Curious(watched));
  watched = &owner;
  owner.reset();
  EXPECT_TRUE(Curious::owner_was_empty);
}

TEST_F(coPrgTest, cannot_be_copied)
{
  EXPECT_FALSE(std::is_copy_constructible_v<coPrg<Counted>>);
  EXPECT_FALSE((std::is_assignable_v<coPrg<Counted>&, coPrg<Counted> const&>));
}
