#include <apProcessControl.h>

#include <gtest/gtest.h>

TEST(apProcessControl, getpid_is_positive_and_stays_the_same)
{
  EXPECT_GT(apProcessControl::getpid(), 0);
  EXPECT_EQ(apProcessControl::getpid(), apProcessControl::getpid());
}
