#include "axsByteBlock.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
template <class Block>
class axsByteBlock_ : public testing::Test
{
};

#if defined(__SSE2__)
using Blocks = testing::Types<axsWordBlock, axsSse2Block>;
#else
using Blocks = testing::Types<axsWordBlock>;
#endif
// The comma, because clang wants an argument where none has to be.
TYPED_TEST_SUITE(axsByteBlock_, Blocks, );

// Every byte at every place, between every two neighbours out of some that differ from what is looked for by a carry.
template <class Block, class Find, class Expected>
void expect_everywhere(Find find, Expected expected)
{
  std::string const neighbours("\0\x01\x08\x09\x0A\x0B\x1F\x20\x21<=\x7F\x80\x81\xFF", 15);
  for (int byte = 0; byte < 256; ++byte)
    for (std::size_t place = 0; place < Block::size; ++place)
      for (char const before : neighbours)
        for (char const behind : neighbours)
        {
          std::string bytes(Block::size, before);
          std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(place), bytes.end(), behind);
          bytes[place] = static_cast<char>(byte);
          std::size_t first = 0;
          while (first < bytes.size() && !expected(bytes[first]))
            ++first;
          auto const found = find(Block(bytes.data()));
          ASSERT_EQ(found.any(), first < bytes.size()) << byte << " at " << place;
          if (found.any())
          {
            ASSERT_EQ(found.first(), first) << byte << " at " << place;
          }
        }
}

bool is_no_ascii_or_control(char c)
{
  return static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x80;
}
}

TYPED_TEST(axsByteBlock_, finds_a_character)
{
  for (char const wanted : {'<', '\0', '\x01', '\x7F', '\x80', '\xFF'})
    expect_everywhere<TypeParam>(
      [=](TypeParam const& block) { return block.is(wanted); }, [=](char c) { return c == wanted; });
}

TYPED_TEST(axsByteBlock_, finds_what_is_no_ascii_or_a_control)
{
  expect_everywhere<TypeParam>(
    [](TypeParam const& block) { return block.is_no_ascii_or_control(); }, is_no_ascii_or_control);
}

TYPED_TEST(axsByteBlock_, finds_what_is_no_ascii_text)
{
  expect_everywhere<TypeParam>([](TypeParam const& block) { return block.is_no_ascii_text(); },
    [](char c) { return is_no_ascii_or_control(c) && c != '\t' && c != '\n'; });
}

TYPED_TEST(axsByteBlock_, finds_one_or_the_other)
{
  expect_everywhere<TypeParam>([](TypeParam const& block)
    { return block.is('<') | block.is('\x09') | block.is('\x80'); },
    [](char c) { return c == '<' || c == '\x09' || c == '\x80'; });
}
