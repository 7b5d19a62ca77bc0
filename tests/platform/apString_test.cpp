#include <apString.h>

#include <atomic>
#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

TEST(apString, default_constructed_is_empty)
{
  apString const text;
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(text.length(), 0);
  ASSERT_NE(text.c_str(), nullptr);
  EXPECT_EQ(*text.c_str(), L'\0');
}

TEST(apString, made_from_wide_text_holds_a_copy)
{
  wchar_t source[] = L"abc";
  apString const text(source);
  source[0] = L'x';
  EXPECT_EQ(text.view(), L"abc");
  EXPECT_EQ(text.length(), 3);
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(text.c_str()[3], L'\0');
}

TEST(apString, made_with_a_length_takes_that_many_characters_NULs_included)
{
  EXPECT_EQ(apString(L"abcdef", 3).view(), L"abc");
  apString const text(L"a\0b", 3);
  EXPECT_EQ(text.length(), 3);
  EXPECT_EQ(text.view(), std::wstring_view(L"a\0b", 3));
}

TEST(apString, negative_length_counts_as_0)
{
  EXPECT_TRUE(apString(L"abc", -1).empty());
  EXPECT_TRUE(apString(L"abc", INT_MIN).empty());
}

TEST(apString, made_from_null_is_empty)
{
  EXPECT_TRUE(apString(static_cast<wchar_t const*>(nullptr)).empty());
  EXPECT_TRUE(apString(static_cast<wchar_t const*>(nullptr), 3).empty());
  EXPECT_TRUE(apString(static_cast<char const*>(nullptr)).empty());
  EXPECT_TRUE(apString(utString()).empty());
}

TEST(apString, made_from_narrow_text_reads_UTF_8)
{
  EXPECT_EQ(apString("abc").view(), L"abc");
  EXPECT_EQ(apString("\xD1\x84").view(), L"\u0444");
  EXPECT_EQ(apString(utString("\xC3\xA4")).view(), L"\u00E4");
  EXPECT_EQ(apString(utString("a\0b", 3)).view(), std::wstring_view(L"a\0b", 3)) << "as long as it says";
}

TEST(apString, APSTRING_makes_a_wide_text_of_a_narrow_literal)
{
  EXPECT_EQ(APSTRING("abc").view(), L"abc");
  EXPECT_TRUE(APSTRING("").empty());
}

TEST(apString, copies_of_long_texts_share_the_storage_and_keep_it_alive)
{
  std::wstring const longer(apString::max_inside + 1, L'x');
  apString copy;
  {
    apString const text(longer.c_str());
    copy = text;
    EXPECT_EQ(copy.c_str(), text.c_str());
    EXPECT_EQ(apString(text).c_str(), text.c_str());
  }
  EXPECT_EQ(copy.view(), longer);
}

TEST(apString, a_short_text_lies_in_the_object)
{
  auto const is_inside = [](apString const& text)
  {
    auto const* const object = reinterpret_cast<char const*>(&text);
    auto const* const at = reinterpret_cast<char const*>(text.c_str());
    return at >= object && at < object + sizeof text;
  };
  for (int length = 0; length <= 2 * apString::max_inside; ++length)
  {
    std::string const given(static_cast<std::size_t>(length), 'x');
    std::wstring const wide(given.begin(), given.end());
    for (apString const& text : {apString(given.c_str()), apString(wide.c_str()), apString(wide.c_str(), length),
           apString(wide.c_str()) + apString(L"")})
    {
      EXPECT_EQ(text.view(), wide);
      EXPECT_EQ(text.length(), length);
      EXPECT_EQ(text.c_str()[length], L'\0');
      EXPECT_EQ(is_inside(text), length <= apString::max_inside) << length;
    }
  }
}

TEST(apString, assignment_of_itself_keeps_the_text)
{
  apString text(L"abc");
  apString& same = text;
  text = same;
  EXPECT_EQ(text.view(), L"abc");
  text = std::move(same);
  EXPECT_EQ(text.view(), L"abc");
}

TEST(apString, texts_are_equal_character_by_character)
{
  EXPECT_TRUE(apString(L"abc") == apString(L"abc"));
  EXPECT_FALSE(apString(L"abc") == apString(L"abC"));
  EXPECT_FALSE(apString(L"abc") == apString(L"ab"));
  EXPECT_TRUE(apString(L"abc") != apString(L"abd"));
  EXPECT_FALSE(apString(L"abc") != apString(L"abc"));
  EXPECT_TRUE(apString() == apString(L""));
  EXPECT_FALSE(apString(L"a\0b", 3) == apString(L"a\0c", 3));
  EXPECT_FALSE(apString(L"a\0b", 3) == apString(L"a"));
}

TEST(apString, texts_are_ordered_character_by_character)
{
  EXPECT_TRUE(apString(L"a") < apString(L"b"));
  EXPECT_FALSE(apString(L"b") < apString(L"a"));
  EXPECT_TRUE(apString(L"a") < apString(L"aa"));
  EXPECT_TRUE(apString() < apString(L"a"));
  EXPECT_FALSE(apString(L"a") < apString(L"a"));
  EXPECT_TRUE(apString(L"B") < apString(L"a"));
}

TEST(apString, find_gives_the_first_position_at_or_after_the_start)
{
  apString const text(L"abcabc");
  EXPECT_EQ(text.find(APSTRING("abc")), 0);
  EXPECT_EQ(text.find(APSTRING("bc")), 1);
  EXPECT_EQ(text.find(APSTRING("abc"), 1), 3);
  EXPECT_EQ(text.find(APSTRING("abc"), 3), 3);
  EXPECT_EQ(text.find(APSTRING("abc"), 4), -1);
  EXPECT_EQ(text.find(APSTRING("x")), -1);
  EXPECT_EQ(text.find(APSTRING("abcabca")), -1);
}

TEST(apString, find_takes_any_start)
{
  apString const text(L"abc");
  EXPECT_EQ(text.find(APSTRING("a"), -1), 0);
  EXPECT_EQ(text.find(APSTRING("a"), INT_MIN), 0);
  EXPECT_EQ(text.find(APSTRING("c"), 3), -1);
  EXPECT_EQ(text.find(APSTRING("c"), INT_MAX), -1);
}

TEST(apString, empty_text_is_found_wherever_the_search_starts_within_the_text)
{
  apString const text(L"abc");
  EXPECT_EQ(text.find(apString()), 0);
  EXPECT_EQ(text.find(apString(), 2), 2);
  EXPECT_EQ(text.find(apString(), 3), 3);
  EXPECT_EQ(text.find(apString(), 4), -1);
  EXPECT_EQ(apString().find(apString()), 0);
}

TEST(apString, find_sees_beyond_a_NUL)
{
  EXPECT_EQ(apString(L"a\0b", 3).find(APSTRING("b")), 2);
}

TEST(apString, replace_all_replaces_every_occurrence_and_counts_them)
{
  apString text(L"a.b.c");
  EXPECT_EQ(text.replace_all(APSTRING("."), APSTRING(",")), 2);
  EXPECT_EQ(text.view(), L"a,b,c");
  EXPECT_EQ(text.replace_all(APSTRING(","), APSTRING("::")), 2);
  EXPECT_EQ(text.view(), L"a::b::c");
  EXPECT_EQ(text.replace_all(APSTRING("::"), APSTRING("")), 2);
  EXPECT_EQ(text.view(), L"abc");
  EXPECT_EQ(text.replace_all(APSTRING("abc"), APSTRING("x")), 1);
  EXPECT_EQ(text.view(), L"x");
}

TEST(apString, replace_all_goes_from_left_to_right_without_overlap_and_not_into_what_it_put_in)
{
  apString text(L"aaaaa");
  EXPECT_EQ(text.replace_all(APSTRING("aa"), APSTRING("b")), 2);
  EXPECT_EQ(text.view(), L"bba");
  EXPECT_EQ(text.replace_all(APSTRING("b"), APSTRING("bb")), 2);
  EXPECT_EQ(text.view(), L"bbbba");
}

TEST(apString, replace_all_that_finds_nothing_changes_nothing)
{
  apString text(L"abc");
  wchar_t const* const storage = text.c_str();
  EXPECT_EQ(text.replace_all(APSTRING("x"), APSTRING("y")), 0);
  EXPECT_EQ(text.replace_all(apString(), APSTRING("y")), 0);
  EXPECT_EQ(text.c_str(), storage);
}

TEST(apString, replace_all_can_be_given_the_text_itself)
{
  apString text(L"ab");
  EXPECT_EQ(text.replace_all(text, APSTRING("cd")), 1);
  EXPECT_EQ(text.view(), L"cd");
  EXPECT_EQ(text.replace_all(APSTRING("d"), text), 1);
  EXPECT_EQ(text.view(), L"ccd");
  EXPECT_EQ(text.replace_all(text, text), 1);
  EXPECT_EQ(text.view(), L"ccd");
}

TEST(apString, replace_all_leaves_copies_as_they_were)
{
  apString text(L"a.b");
  apString const copy(text);
  text.replace_all(APSTRING("."), APSTRING(","));
  EXPECT_EQ(copy.view(), L"a.b");
}

TEST(apString, sum_is_the_one_text_and_then_the_other)
{
  EXPECT_EQ((apString(L"ab") + apString(L"cd")).view(), L"abcd");
  apString const text(L"a text of more characters than has room in the object");
  EXPECT_EQ((text + apString()).c_str(), text.c_str());
  EXPECT_EQ((apString() + text).c_str(), text.c_str());
  EXPECT_TRUE((apString() + apString()).empty());
}

TEST(apString, appending_lengthens_the_text_and_not_its_copies)
{
  apString text(L"ab");
  apString const copy(text);
  EXPECT_EQ(&(text += apString(L"c")), &text);
  EXPECT_EQ(text.view(), L"abc");
  EXPECT_EQ(copy.view(), L"ab");
  text += text;
  EXPECT_EQ(text.view(), L"abcabc");
}

TEST(apString, copies_are_made_used_and_dropped_by_several_threads)
{
  apString const shared(L"shared between threads");
  std::atomic<int> equal(0);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back(
      [&shared, &equal]
      {
        for (int round = 0; round < 1000; ++round)
        {
          apString const copy(shared);
          if (copy == shared && copy.to_utf8().length() == 22)
            ++equal;
        }
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(equal, 4000);
}
