#include <coPrf.h>

#include "../PrivateMember.h"
#include "Counted.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

struct External
{
  using type = bool (coPrf<Counted>::*)() const noexcept;
  friend type private_member(External);
};

template struct PrivateMember<External, &coPrf<Counted>::external>;

namespace
{
struct coPrfTest : testing::Test
{
  ~coPrfTest() override { EXPECT_EQ(Counted::alive, 0); }

  static bool external(coPrf<Counted> const& owner) { return (owner.*private_member(External()))(); }
};
}

TEST_F(coPrfTest, default_constructed_is_empty)
{
  coPrf<Counted> const owner;
  EXPECT_EQ(owner.get(), nullptr);
  EXPECT_FALSE(owner);
  EXPECT_FALSE(external(owner));
  EXPECT_EQ(static_cast<std::shared_ptr<Counted>>(owner), nullptr);
}

TEST_F(coPrfTest, owner_of_a_raw_pointer_deletes_the_object_when_the_last_owner_goes)
{
  coPrf<Counted> last;
  {
    coPrf<Counted> const first(new Counted(3));
    last = first;
  }
  EXPECT_EQ(Counted::alive, 1);
  EXPECT_EQ(last->value, 3);
  EXPECT_EQ((*last).value, 3);
  EXPECT_TRUE(last);
  EXPECT_FALSE(external(last));
  last = coPrf<Counted>();
  EXPECT_EQ(Counted::alive, 0);
}

TEST_F(coPrfTest, owner_of_a_shared_pointer_shares_the_ownership)
{
  auto const shared = std::make_shared<Counted>(4);
  coPrf<Counted> const owner(shared);
  EXPECT_EQ(owner.get(), shared.get());
  EXPECT_EQ(shared.use_count(), 2);
  EXPECT_FALSE(external(owner));
}

TEST_F(coPrfTest, conversion_returns_a_copy_that_raises_the_use_count)
{
  coPrf<Counted> const owner(new Counted(5));
  std::shared_ptr<Counted> const first = owner;
  EXPECT_EQ(first.use_count(), 2);
  std::shared_ptr<Counted> const second = owner;
  EXPECT_EQ(first.use_count(), 3);
  EXPECT_EQ(first, second);
}

TEST_F(coPrfTest, copies_and_moves_share_and_hand_over)
{
  coPrf<Counted> first(new Counted(6));
  coPrf<Counted> const second(first);
  EXPECT_EQ(static_cast<std::shared_ptr<Counted>>(first).use_count(), 3);
  coPrf<Counted> const third(std::move(first));
  EXPECT_EQ(static_cast<std::shared_ptr<Counted>>(third).use_count(), 3);
  EXPECT_EQ(third.get(), second.get());
}

TEST_F(coPrfTest, owner_made_with_coPrfExtern_leaves_the_object_alone_and_is_external)
{
  Counted object(7);
  {
    coPrf<Counted> const owner(coPrfExtern(), &object);
    EXPECT_TRUE(external(owner));
    coPrf<Counted> const copy(owner);
    EXPECT_TRUE(external(copy));
    EXPECT_TRUE(external(coPrf<Counted>(static_cast<std::shared_ptr<Counted>>(owner))));
  }
  EXPECT_EQ(Counted::alive, 1);
}
