#include <coSharedText.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

namespace
{
using Text = coSharedText<char>;

Text made(std::string_view characters)
{
  Text text(static_cast<int>(characters.size()));
  std::memcpy(text.writable(), characters.data(), characters.size());
  return text;
}

std::string_view view(Text const& text)
{
  return {text.data(), static_cast<std::size_t>(text.length())};
}
}

TEST(coSharedText, holds_characters_and_a_closing_NUL)
{
  Text const text = made("ab");
  EXPECT_EQ(view(text), "ab");
  EXPECT_EQ(text.data()[2], '\0');
  EXPECT_EQ(view(made("")), "");
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
  Text const text = made("abc");
  Text const copy(text);
  EXPECT_EQ(copy.data(), text.data());
}

TEST(coSharedText, storage_lives_as_long_as_any_copy)
{
  auto text = std::make_unique<Text>(made("abc"));
  Text const copy(*text);
  text.reset();
  EXPECT_EQ(view(copy), "abc");
}

TEST(coSharedText, moving_hands_the_storage_over)
{
  Text text = made("abc");
  char const* const data = text.data();
  Text const taken(std::move(text));
  EXPECT_EQ(taken.data(), data);
}

TEST(coSharedText, checked_length_takes_what_an_int_can_say_and_refuses_more)
{
  EXPECT_EQ(Text::checked_length(0), 0);
  EXPECT_EQ(Text::checked_length(INT_MAX), INT_MAX);
  EXPECT_EQ(coSharedText<wchar_t>::checked_length(INT_MAX), INT_MAX);
  EXPECT_THROW(Text::checked_length(static_cast<std::size_t>(INT_MAX) + 1), std::bad_alloc);
  EXPECT_THROW(Text::checked_length(static_cast<std::size_t>(-1)), std::bad_alloc);
}
