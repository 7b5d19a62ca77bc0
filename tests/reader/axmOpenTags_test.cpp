#include "axmOpenTags.h"

#include <gtest/gtest.h>

#include <string>

TEST(axmOpenTags, gives_back_in_reverse_what_was_put_in_at_every_depth)
{
  std::string const names(1000, 'a');
  axmOpenTags open;
  EXPECT_TRUE(open.empty());
  for (int round = 0; round < 2; ++round)
  {
    for (int i = 0; i < 1000; ++i)
      open.push({names.data(), names.data() + i});
    for (int i = 1000; i-- > 0;)
    {
      ASSERT_FALSE(open.empty());
      ASSERT_EQ(open.last().length(), i);
      open.pop();
    }
    EXPECT_TRUE(open.empty());
  }
}
