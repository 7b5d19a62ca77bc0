#include "axmFind.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

TEST(axmFind, finds_a_character_or_the_end_at_every_distance)
{
  for (std::size_t length = 0; length < 70; ++length)
    for (std::size_t at = 0; at <= length; ++at)
    {
      // On its own in memory, so that a read beyond the end is one beyond the block.
      std::unique_ptr<char[]> const text(new char[length + 1]);
      for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<char>('a' + i % 20);
      text[length] = '\0';
      if (at < length)
        text[at] = '<';
      EXPECT_EQ(axm_find(text.get(), text.get() + length, '<') - text.get(), static_cast<std::ptrdiff_t>(at));
    }
}

TEST(axmFind, stops_at_a_nul_before_the_end)
{
  std::string const text("ab\0cdefghijklmnopqrstuvwxyz<", 28);
  EXPECT_EQ(axm_find(text.data(), text.data() + text.size(), '<') - text.data(), 2);
}

TEST(axmFind, may_stand_on_what_it_looks_for)
{
  std::string const text = "<a";
  EXPECT_EQ(axm_find(text.data(), text.data() + text.size(), '<'), text.data());
}

TEST(axmFind, passes_white_space_at_every_distance)
{
  for (std::size_t length = 0; length < 70; ++length)
    for (std::size_t at = 0; at <= length; ++at)
    {
      std::unique_ptr<char[]> const text(new char[length + 1]);
      for (std::size_t i = 0; i < length; ++i)
        text[i] = " \t\r\n"[i % 4];
      text[length] = '\0';
      if (at < length)
        text[at] = static_cast<char>(at % 2 == 0 ? 1 : 'x');
      EXPECT_EQ(axm_find_no_space(text.get(), text.get() + length) - text.get(), static_cast<std::ptrdiff_t>(at));
    }
}
