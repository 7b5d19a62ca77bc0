#include <utPtrRelease.h>

#include <gtest/gtest.h>

TEST(utPtrRelease, mode_for_handing_a_new_object_to_the_caller_is_3)
{
  EXPECT_EQ(static_cast<int>(utPtrReleaseToCaller), 3);
}
