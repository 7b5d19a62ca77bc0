#include <coSharedText.h>

#include <climits>
#include <cstddef>
#include <gtest/gtest.h>
#include <new>
#include <string_view>
#include <utility>

namespace
{
using Text = coSharedText<char>;

std::string_view view(Text const& text)
{
  return {text.data(), static_cast<std::size_t>(text.length())};
}
}

TEST(coSharedText, without_storage_has_length_0_and_data_that_is_a_NUL)
{
  Text const text;
  EXPECT_FALSE(text.has_storage());
  EXPECT_EQ(text.length(), 0);
  ASSERT_NE(text.data(), nullptr);
  EXPECT_EQ(*text.data(), '\0');
}

TEST(coSharedText, empty_text_has_storage)
{
  Text const text("", 0);
  EXPECT_TRUE(text.has_storage());
  EXPECT_EQ(text.length(), 0);
  EXPECT_EQ(*text.data(), '\0');
}

TEST(coSharedText, holds_characters_and_a_closing_NUL)
{
  Text const text("abc", 2);
  EXPECT_EQ(view(text), "ab");
  EXPECT_EQ(text.data()[2], '\0');
}

TEST(coSharedText, writable_room_is_closed_by_a_NUL)
{
  coSharedText<wchar_t> text(2);
  text.writable()[0] = L'a';
  text.writable()[1] = L'b';
  EXPECT_EQ(std::wstring_view(text.data()), L"ab");
}

TEST(coSharedText, copies_share_the_storage)
{
  Text const text("abc", 3);
  Text const copy(text);
  EXPECT_EQ(copy.data(), text.data());
  Text assigned("x", 1);
  assigned = text;
  EXPECT_EQ(assigned.data(), text.data());
}

TEST(coSharedText, storage_lives_as_long_as_any_copy)
{
  Text copy;
  {
    Text const text("abc", 3);
    copy = text;
  }
  EXPECT_EQ(view(copy), "abc");
}

TEST(coSharedText, assignment_of_itself_and_of_a_copy_keeps_the_text)
{
  Text text("abc", 3);
  Text const& same = text;
  text = same;
  EXPECT_EQ(view(text), "abc");
  Text const copy(text);
  text = copy;
  EXPECT_EQ(view(text), "abc");
  Text& moved = text;
  text = std::move(moved);
  EXPECT_EQ(view(text), "abc");
}

TEST(coSharedText, moving_hands_the_storage_over)
{
  Text text("abc", 3);
  char const* const data = text.data();
  Text const taken(std::move(text));
  EXPECT_EQ(taken.data(), data);
  Text assigned("x", 1);
  Text source("yz", 2);
  assigned = std::move(source);
  EXPECT_EQ(view(assigned), "yz");
}

TEST(coSharedText, checked_length_takes_what_an_int_can_say_and_refuses_more)
{
  EXPECT_EQ(Text::checked_length(0), 0);
  EXPECT_EQ(Text::checked_length(INT_MAX), INT_MAX);
  EXPECT_EQ(coSharedText<wchar_t>::checked_length(INT_MAX), INT_MAX);
  EXPECT_THROW(Text::checked_length(static_cast<std::size_t>(INT_MAX) + 1), std::bad_alloc);
  EXPECT_THROW(Text::checked_length(static_cast<std::size_t>(-1)), std::bad_alloc);
}
