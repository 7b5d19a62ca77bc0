#include <axsAttributeDecl.h>
#include <axsAttributeUses.h>

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace
{
class Declared
{
public:
  std::vector<axsAttributeUse> uses(int first, int count)
  {
    std::vector<axsAttributeUse> made;
    for (int i = first; i < first + count; ++i)
    {
      decls.emplace_back();
      decls.back().name.local = "a" + std::to_string(i);
      made.emplace_back();
      made.back().decl = &decls.back();
    }
    return made;
  }

private:
  std::deque<axsAttributeDecl> decls;
};
}

TEST(axsAttributeUses, those_of_a_chain_of_types_keep_their_order_and_are_found)
{
  Declared declared;
  axsAttributeUses uses;
  int count = 0;
  for (int const added : {3, 1, 0, 1, 20, 1, 1, 1, 1, 5})
  {
    uses = axsAttributeUses(uses, declared.uses(count, added));
    count += added;
    ASSERT_EQ(uses.size(), static_cast<std::size_t>(count));
    std::size_t number = 0;
    for (axsAttributeUse const& use : uses)
    {
      EXPECT_EQ(use.decl->name.local, "a" + std::to_string(number));
      EXPECT_EQ(&use, &uses[number]);
      EXPECT_EQ(uses.find("", use.decl->name.local), number);
      ++number;
    }
    EXPECT_EQ(number, uses.size());
    EXPECT_EQ(uses.find("", "b"), axsAttributeUses::none);
    EXPECT_EQ(uses.find("u", "a0"), axsAttributeUses::none);
  }
}

TEST(axsAttributeUses, those_that_are_shared_with_others_are_left_out)
{
  Declared declared;
  axsAttributeUses const base(declared.uses(0, 20));
  axsAttributeUses const left(base, declared.uses(20, 2));
  axsAttributeUses const right(base, declared.uses(30, 1));
  EXPECT_TRUE(left.not_shared_with(left).empty());
  EXPECT_EQ(left.not_shared_with({}).size(), 22u);
  ASSERT_EQ(left.not_shared_with(right).size(), 2u);
  EXPECT_EQ(left.not_shared_with(right)[0].decl->name.local, "a20");
}

TEST(axsAttributeUses, types_that_add_none_share_them)
{
  Declared declared;
  axsAttributeUses const base(declared.uses(0, 3));
  EXPECT_TRUE(axsAttributeUses(base, {}).is_shared_with(base));
  EXPECT_FALSE(axsAttributeUses(base, declared.uses(3, 1)).is_shared_with(base));
  EXPECT_TRUE(axsAttributeUses().empty());
}
