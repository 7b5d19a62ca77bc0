#include <apEntropy.h>

#include <gtest/gtest.h>

#include <set>

TEST(apEntropy, draws_other_bits_each_time)
{
  std::set<std::uint64_t> drawn;
  std::uint64_t ones = 0;
  std::uint64_t zeros = 0;
  for (int i = 0; i < 100; ++i)
  {
    std::uint64_t const bits = apEntropy::draw();
    drawn.insert(bits);
    ones |= bits;
    zeros |= ~bits;
  }
  EXPECT_EQ(drawn.size(), 100u);
  // No bit is always the same.
  EXPECT_EQ(ones & zeros, ~std::uint64_t{0});
}
