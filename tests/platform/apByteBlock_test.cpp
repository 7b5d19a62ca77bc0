#include <apByteBlock.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
template <class Block>
class apByteBlock_ : public testing::Test
{
};

#if defined(AP_HAS_SSE2)
using Blocks = testing::Types<apWordBlock, apSse2Block>;
#else
using Blocks = testing::Types<apWordBlock>;
#endif
// The comma, because clang wants an argument where none has to be.
TYPED_TEST_SUITE(apByteBlock_, Blocks, );

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

bool is_control_or_non_ascii(char c)
{
  return static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x80;
}
}

TYPED_TEST(apByteBlock_, finds_a_character)
{
  for (char const wanted : {'<', '\0', '\x01', '\x7F', '\x80', '\xFF'})
    expect_everywhere<TypeParam>(
      [=](TypeParam const& block) { return block.is(wanted); }, [=](char c) { return c == wanted; });
}

TYPED_TEST(apByteBlock_, finds_controls_and_what_is_no_ascii)
{
  expect_everywhere<TypeParam>(
    [](TypeParam const& block) { return block.is_control_or_non_ascii(); }, is_control_or_non_ascii);
}

TYPED_TEST(apByteBlock_, finds_controls)
{
  expect_everywhere<TypeParam>([](TypeParam const& block) { return block.is_control(); },
    [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

TYPED_TEST(apByteBlock_, finds_zeros_and_what_is_no_ascii)
{
  expect_everywhere<TypeParam>([](TypeParam const& block) { return block.is_zero_or_non_ascii(); },
    [](char c) { return c == '\0' || static_cast<unsigned char>(c) >= 0x80; });
}

TYPED_TEST(apByteBlock_, finds_what_is_beyond_ascii_from_a_byte_on)
{
  for (char const least : {'\x80', '\x90', '\xA0', '\xC0', '\xF5', '\xFF'})
    expect_everywhere<TypeParam>([=](TypeParam const& block) { return block.is_at_least(least); },
      [=](char c) { return static_cast<unsigned char>(c) >= static_cast<unsigned char>(least); });
}

TYPED_TEST(apByteBlock_, finds_some_without_others)
{
  expect_everywhere<TypeParam>([](TypeParam const& block)
    { return block.is_control_or_non_ascii().without(block.is('\t') | block.is('\n')); },
    [](char c) { return is_control_or_non_ascii(c) && c != '\t' && c != '\n'; });
}

TYPED_TEST(apByteBlock_, finds_either_of_two_that_differ_in_one_bit)
{
  expect_everywhere<TypeParam>(
    [](TypeParam const& block) { return block.is_either('<', '>'); }, [](char c) { return c == '<' || c == '>'; });
}

TYPED_TEST(apByteBlock_, compares_byte_by_byte)
{
  std::string const other(TypeParam::size, '=');
  expect_everywhere<TypeParam>(
    [&](TypeParam const& block) { return block.is(TypeParam(other.data())); }, [](char c) { return c == '='; });
}

TYPED_TEST(apByteBlock_, has_a_bit_for_each_byte)
{
  std::string bytes(TypeParam::size, 'a');
  for (std::uint32_t expected = 0; expected < 1u << TypeParam::size; ++expected)
  {
    for (std::size_t place = 0; place < bytes.size(); ++place)
      bytes[place] = (expected >> place & 1) != 0 ? '<' : 'a';
    ASSERT_EQ(TypeParam(bytes.data()).is('<').bits(), expected);
  }
}

TYPED_TEST(apByteBlock_, finds_one_or_the_other)
{
  expect_everywhere<TypeParam>([](TypeParam const& block)
    { return block.is('<') | block.is('\x09') | block.is('\x80'); },
    [](char c) { return c == '<' || c == '\x09' || c == '\x80'; });
}
