#include <coPageArr.h>
#include <coPrg.h>

#include <gtest/gtest.h>

TEST(coPageArr, default_constructed_has_count_0_and_no_pages)
{
  coPageArr<coPrg<int>> array;
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.pages(), 0);
  EXPECT_EQ(array.page_size(), 256);
}
