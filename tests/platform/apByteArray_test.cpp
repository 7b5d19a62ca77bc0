#include <apByteArray.h>

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace
{
std::string_view view(apByteArray const& bytes)
{
  return {bytes.data(), bytes.size()};
}
}

TEST(apByteArray, default_constructed_is_empty)
{
  apByteArray const bytes;
  EXPECT_TRUE(bytes.empty());
  EXPECT_EQ(bytes.size(), 0u);
}

TEST(apByteArray, holds_a_copy_of_the_bytes_given)
{
  char source[] = {'a', '\0', '\xFF'};
  apByteArray const bytes(source, 3);
  source[0] = 'x';
  EXPECT_EQ(view(bytes), std::string_view("a\0\xFF", 3));
  EXPECT_FALSE(bytes.empty());
}

TEST(apByteArray, made_of_no_bytes_is_empty)
{
  EXPECT_TRUE(apByteArray(nullptr, 0).empty());
  EXPECT_TRUE(apByteArray("abc", 0).empty());
}

TEST(apByteArray, copies_are_independent)
{
  apByteArray const bytes("abc", 3);
  apByteArray copy(bytes);
  copy.data()[0] = 'x';
  EXPECT_EQ(view(copy), "xbc");
  EXPECT_EQ(view(bytes), "abc");
  copy = bytes;
  EXPECT_EQ(view(copy), "abc");
  apByteArray const& same = copy;
  copy = same;
  EXPECT_EQ(view(copy), "abc");
}

TEST(apByteArray, moving_hands_the_bytes_over)
{
  apByteArray bytes("abc", 3);
  char const* const data = bytes.data();
  apByteArray taken(std::move(bytes));
  EXPECT_EQ(taken.data(), data);
  apByteArray assigned("x", 1);
  assigned = std::move(taken);
  EXPECT_EQ(assigned.data(), data);
}

TEST(apByteArray, resize_cuts_off_or_adds_zeros)
{
  apByteArray bytes("abc", 3);
  bytes.resize(2);
  EXPECT_EQ(view(bytes), "ab");
  bytes.resize(4);
  EXPECT_EQ(view(bytes), std::string_view("ab\0\0", 4));
  bytes.resize(0);
  EXPECT_TRUE(bytes.empty());
}

TEST(apByteArray, size_that_no_memory_has_is_refused_and_changes_nothing)
{
  apByteArray bytes("abc", 3);
  EXPECT_THROW(bytes.resize(SIZE_MAX), std::length_error);
  EXPECT_EQ(view(bytes), "abc");
}

TEST(apByteArray, append_adds_bytes_at_the_end)
{
  apByteArray bytes;
  bytes.append("ab", 2);
  bytes.append("c\0", 2);
  EXPECT_EQ(view(bytes), std::string_view("abc\0", 4));
  bytes.append(nullptr, 0);
  bytes.append("x", 0);
  EXPECT_EQ(bytes.size(), 4u);
}

TEST(apByteArray, append_of_its_own_bytes_adds_them)
{
  apByteArray bytes("abc", 3);
  std::string expected = "abc";
  for (int i = 0; i < 10; ++i)
  {
    bytes.append(bytes.data() + 1, bytes.size() - 1);
    expected += std::string(expected, 1);
    ASSERT_EQ(view(bytes), expected);
  }
}

TEST(apByteArray, many_small_appends_add_up)
{
  apByteArray bytes;
  for (int i = 0; i < 100000; ++i)
    bytes.append("ab", 2);
  EXPECT_EQ(bytes.size(), 200000u);
  EXPECT_EQ(view(bytes).substr(199998), "ab");
}

TEST(apByteArray, clear_gives_everything_back)
{
  apByteArray bytes("abc", 3);
  bytes.clear();
  EXPECT_TRUE(bytes.empty());
  bytes.append("x", 1);
  EXPECT_EQ(view(bytes), "x");
}

TEST(apByteArray, equal_byte_by_byte)
{
  EXPECT_TRUE(apByteArray("a\0b", 3) == apByteArray("a\0b", 3));
  EXPECT_FALSE(apByteArray("a\0b", 3) == apByteArray("a\0c", 3));
  EXPECT_TRUE(apByteArray("ab", 2) != apByteArray("abc", 3));
  EXPECT_FALSE(apByteArray() != apByteArray("", 0));
}
