#include <coText.h>

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{
int const most = 11;

template <class C>
using Text = coText<C, most>;

template <class C>
class coTextOf : public testing::Test
{
protected:
  // So many characters, no two of which are alike.
  static std::basic_string<C> characters(int length)
  {
    std::basic_string<C> text;
    for (int i = 0; i < length; ++i)
      text += static_cast<C>('A' + i);
    return text;
  }

  static Text<C> made(int length)
  {
    auto const text = characters(length);
    return Text<C>(length, [&](C* to) { std::copy(text.begin(), text.end(), to); });
  }

  static std::basic_string<C> string(Text<C> const& text)
  {
    return {text.data(), static_cast<std::size_t>(text.length())};
  }

  static bool is_inside(Text<C> const& text)
  {
    auto const* const at = reinterpret_cast<char const*>(text.data());
    auto const* const object = reinterpret_cast<char const*>(&text);
    return at >= object && at < object + sizeof text;
  }
};

struct NameOfCharacters
{
  template <class C>
  static std::string GetName(int)
  {
    return std::is_same_v<C, char> ? "char" : std::is_same_v<C, wchar_t> ? "wchar_t" : "char16_t";
  }
};

using Characters = testing::Types<char, char16_t, wchar_t>;
TYPED_TEST_SUITE(coTextOf, Characters, NameOfCharacters);
}

TYPED_TEST(coTextOf, no_storage_has_length_0_and_data_that_is_a_NUL)
{
  Text<TypeParam> const text;
  EXPECT_FALSE(text.has_storage());
  EXPECT_EQ(text.length(), 0);
  ASSERT_NE(text.data(), nullptr);
  EXPECT_EQ(*text.data(), TypeParam());
}

TYPED_TEST(coTextOf, text_of_any_length_is_kept_with_a_closing_NUL)
{
  for (int length = 0; length <= 2 * most; ++length)
  {
    auto const text = this->made(length);
    EXPECT_TRUE(text.has_storage()) << length;
    EXPECT_EQ(text.length(), length);
    EXPECT_EQ(this->string(text), this->characters(length));
    EXPECT_EQ(text.data()[length], TypeParam());
  }
}

TYPED_TEST(coTextOf, text_lies_in_the_object_up_to_the_most_and_apart_beyond)
{
  for (int length = 0; length <= 2 * most; ++length)
    EXPECT_EQ(this->is_inside(this->made(length)), length <= most) << length;
}

TYPED_TEST(coTextOf, copies_of_long_texts_share_the_storage_and_those_of_short_ones_do_not)
{
  auto const long_text = this->made(most + 1);
  EXPECT_EQ(Text<TypeParam>(long_text).data(), long_text.data());
  auto const short_text = this->made(most);
  EXPECT_NE(Text<TypeParam>(short_text).data(), short_text.data());
}

TYPED_TEST(coTextOf, values_go_between_short_long_and_no_storage)
{
  std::vector<Text<TypeParam>> const values = {
    Text<TypeParam>(), this->made(0), this->made(3), this->made(most), this->made(most + 1), this->made(2 * most)};
  for (auto const& from : values)
    for (auto const& to : values)
    {
      Text<TypeParam> copied(to);
      copied = from;
      EXPECT_EQ(this->string(copied), this->string(from));
      EXPECT_EQ(copied.has_storage(), from.has_storage());
      Text<TypeParam> source(from);
      Text<TypeParam> moved(to);
      moved = std::move(source);
      EXPECT_EQ(this->string(moved), this->string(from));
      EXPECT_EQ(moved.has_storage(), from.has_storage());
      EXPECT_FALSE(source.has_storage());
      Text<TypeParam> const taken(std::move(moved));
      EXPECT_EQ(this->string(taken), this->string(from));
      EXPECT_FALSE(moved.has_storage());
    }
}

TYPED_TEST(coTextOf, text_of_any_length_is_assigned_in_the_place_of_any_other)
{
  std::vector<Text<TypeParam>> const values = {
    Text<TypeParam>(), this->made(3), this->made(most), this->made(2 * most)};
  for (auto const& before : values)
    for (int length = 0; length <= 2 * most; ++length)
    {
      auto const characters = this->characters(length);
      Text<TypeParam> text(before);
      text.assign(length, [&](TypeParam* to) { std::copy(characters.begin(), characters.end(), to); });
      EXPECT_EQ(this->string(text), characters);
      EXPECT_EQ(text.data()[length], TypeParam());
      EXPECT_EQ(this->is_inside(text), length <= most);
      EXPECT_TRUE(text.has_storage());
    }
  EXPECT_EQ(this->string(values[3]), this->characters(2 * most));
}

TYPED_TEST(coTextOf, assignment_of_itself_keeps_the_text)
{
  for (int const length : {3, 2 * most})
  {
    auto text = this->made(length);
    auto& same = text;
    text = same;
    EXPECT_EQ(this->string(text), this->characters(length));
    text = std::move(same);
    EXPECT_EQ(this->string(text), this->characters(length));
  }
}

TYPED_TEST(coTextOf, storage_lives_as_long_as_any_copy)
{
  Text<TypeParam> copy;
  {
    auto const text = this->made(2 * most);
    copy = text;
  }
  EXPECT_EQ(this->string(copy), this->characters(2 * most));
}

TYPED_TEST(coTextOf, copies_are_made_and_dropped_by_several_threads)
{
  auto const text = this->made(2 * most);
  auto const expected = this->characters(2 * most);
  std::vector<int> wrong(4);
  std::vector<std::thread> threads;
  for (int& count : wrong)
    threads.emplace_back(
      [&]
      {
        for (int i = 0; i < 1000; ++i)
          if (Text<TypeParam> const copy(text); this->string(copy) != expected)
            ++count;
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(wrong, std::vector<int>(4));
}
