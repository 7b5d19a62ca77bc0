#include <utString.h>

#include <atomic>
#include <climits>
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <iomanip>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{
char const long_text[] = "a text that is too long to lie in the object itself";

std::string bytes(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}
}

TEST(utString, default_constructed_has_no_storage_and_c_str_that_is_empty)
{
  utString const text;
  EXPECT_FALSE(text.has_storage());
  EXPECT_EQ(text.length(), 0);
  ASSERT_NE(text.c_str(), nullptr);
  EXPECT_STREQ(text.c_str(), "");
}

TEST(utString, made_from_text_holds_a_copy)
{
  char source[] = "abc";
  utString const text(source);
  source[0] = 'x';
  EXPECT_STREQ(text.c_str(), "abc");
  EXPECT_EQ(text.length(), 3);
  EXPECT_TRUE(text.has_storage());
}

TEST(utString, made_from_an_empty_text_has_storage)
{
  EXPECT_TRUE(utString("").has_storage());
  EXPECT_EQ(utString("").length(), 0);
  EXPECT_TRUE(utString("abc", 0).has_storage());
  EXPECT_STREQ(utString("abc", 0).c_str(), "");
}

TEST(utString, made_from_null_has_no_storage)
{
  EXPECT_FALSE(utString(static_cast<char const*>(nullptr)).has_storage());
  EXPECT_FALSE(utString(nullptr, 5).has_storage());
}

TEST(utString, made_with_a_length_takes_that_many_bytes_and_closes_them)
{
  utString const text("abcdef", 3);
  EXPECT_EQ(text.length(), 3);
  EXPECT_STREQ(text.c_str(), "abc");
}

TEST(utString, made_with_a_length_keeps_NULs_inside)
{
  utString const text("a\0b", 3);
  EXPECT_EQ(text.length(), 3);
  EXPECT_EQ(bytes(text), std::string("a\0b", 3));
  EXPECT_EQ(text.c_str()[3], '\0');
}

TEST(utString, negative_length_counts_as_0)
{
  EXPECT_EQ(utString("abc", -1).length(), 0);
  EXPECT_EQ(utString("abc", INT_MIN).length(), 0);
  EXPECT_TRUE(utString("abc", -1).has_storage());
}

TEST(utString, written_has_the_bytes_that_were_written)
{
  utString const text = utString::written(3, [](char* to) { std::memcpy(to, "xyz", 3); });
  EXPECT_STREQ(text.c_str(), "xyz");
  EXPECT_EQ(text.length(), 3);
}

TEST(utString, written_by_a_writer_that_throws_throws_on)
{
  EXPECT_THROW(utString::written(3, [](char*) { throw std::runtime_error("no"); }), std::runtime_error);
}

TEST(utString, a_text_of_any_length_is_kept_whole)
{
  for (int length = 0; length < 80; ++length)
  {
    std::string const given(static_cast<std::size_t>(length), 'x');
    utString const text(given.c_str());
    utString const with_length((given + "y").c_str(), length);
    for (utString const& one : {text, with_length, text + utString(), utString(text)})
    {
      EXPECT_EQ(bytes(one), given);
      EXPECT_EQ(one.length(), length);
      EXPECT_EQ(one.c_str()[length], '\0');
      EXPECT_TRUE(one.has_storage());
      EXPECT_EQ(one, text);
    }
  }
}

TEST(utString, a_short_text_lies_in_the_object)
{
  std::string const longest(utString::max_inside, 'x');
  utString const text(longest.c_str());
  char const* const object = reinterpret_cast<char const*>(&text);
  EXPECT_TRUE(text.c_str() >= object && text.c_str() + text.length() < object + sizeof text);
  utString const longer((longest + "x").c_str());
  char const* const other = reinterpret_cast<char const*>(&longer);
  EXPECT_FALSE(longer.c_str() >= other && longer.c_str() < other + sizeof longer);
}

TEST(utString, values_go_between_short_long_and_no_storage)
{
  std::vector<utString> const values = {utString(), utString(""), utString("short"), utString(long_text)};
  for (utString const& from : values)
    for (utString const& to : values)
    {
      utString copied(to);
      copied = from;
      EXPECT_EQ(bytes(copied), bytes(from));
      EXPECT_EQ(copied.has_storage(), from.has_storage());
      utString source(from);
      utString moved(to);
      moved = std::move(source);
      EXPECT_EQ(bytes(moved), bytes(from));
      EXPECT_EQ(moved.has_storage(), from.has_storage());
      EXPECT_FALSE(source.has_storage());
      EXPECT_EQ(source.length(), 0);
      utString const made(std::move(moved));
      EXPECT_EQ(bytes(made), bytes(from));
      EXPECT_FALSE(moved.has_storage());
    }
}

TEST(utString, copies_of_a_long_text_share_the_storage)
{
  utString const text(long_text);
  utString const copy(text);
  utString assigned("x");
  assigned = text;
  EXPECT_EQ(copy.c_str(), text.c_str());
  EXPECT_EQ(assigned.c_str(), text.c_str());
}

TEST(utString, a_copy_keeps_the_text_alive)
{
  utString copy;
  {
    utString const text(long_text);
    copy = text;
  }
  EXPECT_STREQ(copy.c_str(), long_text);
}

TEST(utString, assignment_of_itself_keeps_the_text)
{
  utString text("abc");
  utString& same = text;
  text = same;
  EXPECT_STREQ(text.c_str(), "abc");
  text = std::move(same);
  EXPECT_STREQ(text.c_str(), "abc");
}

TEST(utString, moving_hands_the_storage_over)
{
  utString text(long_text);
  char const* const storage = text.c_str();
  utString taken(std::move(text));
  EXPECT_EQ(taken.c_str(), storage);
  utString assigned("x");
  assigned = std::move(taken);
  EXPECT_EQ(assigned.c_str(), storage);
}

TEST(utString, texts_without_storage_are_equal)
{
  EXPECT_TRUE(utString() == utString());
  EXPECT_FALSE(utString() != utString());
}

TEST(utString, text_without_storage_equals_none_with_storage)
{
  EXPECT_FALSE(utString() == utString(""));
  EXPECT_FALSE(utString("") == utString());
  EXPECT_TRUE(utString() != utString(""));
  EXPECT_TRUE(utString("") != utString());
  EXPECT_FALSE(utString() == utString("a"));
}

TEST(utString, texts_with_storage_are_equal_up_to_the_first_NUL)
{
  EXPECT_TRUE(utString("abc") == utString("abc"));
  EXPECT_TRUE(utString("") == utString("x", 0));
  EXPECT_TRUE(utString("ab\0cd", 5) == utString("ab"));
  EXPECT_TRUE(utString("ab\0cd", 5) == utString("ab\0xy", 5));
  EXPECT_TRUE(utString("\0x", 2) == utString(""));
  EXPECT_FALSE(utString("abc") == utString("ab"));
  EXPECT_FALSE(utString("ab") == utString("abc"));
  EXPECT_TRUE(utString("abc") != utString("abd"));
  EXPECT_FALSE(utString("abc") != utString("abc"));
}

TEST(utString, equality_regards_case)
{
  EXPECT_FALSE(utString("UTF-8") == utString("utf-8"));
}

TEST(utString, case_compare_is_0_for_texts_that_differ_in_the_case_of_letters_only)
{
  EXPECT_EQ(utString("UTF-16").case_compare(utString("utf-16")), 0);
  EXPECT_EQ(utString("abcxyz").case_compare(utString("ABCXYZ")), 0);
  EXPECT_EQ(utString("").case_compare(utString()), 0);
  EXPECT_EQ(utString().case_compare(utString()), 0);
  EXPECT_EQ(utString("ab\0c", 4).case_compare(utString("AB")), 0);
}

TEST(utString, case_compare_orders_by_the_first_difference)
{
  EXPECT_LT(utString("a").case_compare(utString("B")), 0);
  EXPECT_GT(utString("B").case_compare(utString("a")), 0);
  EXPECT_LT(utString("ab").case_compare(utString("ABC")), 0);
  EXPECT_GT(utString("ABC").case_compare(utString("ab")), 0);
  EXPECT_LT(utString().case_compare(utString("a")), 0);
  EXPECT_GT(utString("a").case_compare(utString()), 0);
}

TEST(utString, case_compare_folds_ASCII_letters_only)
{
  EXPECT_NE(utString("@").case_compare(utString("`")), 0);
  EXPECT_NE(utString("[").case_compare(utString("{")), 0);
  EXPECT_NE(utString("\xC3\x84").case_compare(utString("\xC3\xA4")), 0);
  EXPECT_GT(utString("\xFF").case_compare(utString("a")), 0) << "bytes are compared as unsigned numbers";
}

TEST(utString, sum_is_the_one_text_and_then_the_other)
{
  EXPECT_EQ(bytes(utString("ab") + utString("cd")), "abcd");
  EXPECT_EQ(bytes(utString("a\0b", 3) + utString("\0", 1)), std::string("a\0b\0", 4));
}

TEST(utString, sum_with_an_empty_text_shares_the_other)
{
  utString const text(long_text);
  EXPECT_EQ((text + utString()).c_str(), text.c_str());
  EXPECT_EQ((utString("") + text).c_str(), text.c_str());
  EXPECT_FALSE((utString() + utString()).has_storage());
  EXPECT_TRUE((utString("") + utString()).has_storage());
  EXPECT_TRUE((utString() + utString("")).has_storage());
}

TEST(utString, stream_output_writes_all_bytes)
{
  std::ostringstream out;
  out << utString("ab") << utString() << utString("") << utString("c\0d", 3);
  EXPECT_EQ(out.str(), std::string("abc\0d", 5));
}

TEST(utString, stream_output_disregards_width_and_fill)
{
  std::ostringstream out;
  out << std::setw(10) << std::setfill('*') << utString("ab");
  EXPECT_EQ(out.str(), "ab");
}

TEST(utString, ut_lit_makes_a_text_of_a_literal)
{
  EXPECT_EQ(ut_lit("abc"), utString("abc"));
  EXPECT_TRUE(ut_lit("").has_storage());
}

TEST(utString, copies_are_made_used_and_dropped_by_several_threads)
{
  utString const shared(long_text);
  std::atomic<int> equal(0);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back(
      [&shared, &equal]
      {
        std::vector<utString> copies;
        for (int round = 0; round < 1000; ++round)
        {
          copies.push_back(shared);
          utString last(copies.back());
          if (last == shared && last.length() == static_cast<int>(std::strlen(long_text)))
            ++equal;
          if (round % 10 == 0)
            copies.clear();
        }
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(equal, 4000);
  EXPECT_STREQ(shared.c_str(), long_text);
}

TEST(utString, the_last_of_several_threads_frees_what_another_one_made)
{
  for (int round = 0; round < 100; ++round)
  {
    std::vector<std::thread> threads;
    {
      utString const text(long_text);
      for (int i = 0; i < 3; ++i)
        threads.emplace_back(
          [copy = text]() mutable
          {
            EXPECT_STREQ(copy.c_str(), long_text);
            copy = utString();
          });
    }
    for (std::thread& thread : threads)
      thread.join();
  }
}
