#include "axsTextHash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace
{
// All of the same words, in every order: whoever knows the key 1 knows that it adds the words up.
std::vector<std::string> texts_of_same_words()
{
  std::vector<std::string> words = {"aaaaaaaa", "bbbbbbbb", "cccccccc", "dddddddd", "eeeeeeee", "ffffffff", "gggggggg"};
  std::vector<std::string> texts;
  do
  {
    std::string text;
    for (std::string const& word : words)
      text += word;
    texts.push_back(text);
  } while (std::next_permutation(words.begin(), words.end()));
  return texts;
}

std::size_t count_of_values(axsTextHash const& hash, std::vector<std::string> const& texts)
{
  std::set<std::size_t> values;
  for (std::string const& text : texts)
    values.insert(hash(text));
  return values.size();
}
}

TEST(axsTextHash_, texts_that_fall_together_under_one_key_are_apart_under_that_of_the_process)
{
  std::vector<std::string> const texts = texts_of_same_words();
  EXPECT_EQ(1u, count_of_values(axsTextHash(1), texts));
  EXPECT_EQ(texts.size(), count_of_values(axsTextHash(), texts));
}

TEST(axsTextHash_, lower_bits_alone_keep_similar_texts_apart)
{
  axsTextHash const hash;
  for (std::string const begin : {"", "abc", "abcdefg", "a_longer_name_than_two_words"})
  {
    std::set<std::size_t> places;
    for (int i = 0; i < 1000; ++i)
      places.insert(hash(begin + std::to_string(i)) & 0xFFFF);
    EXPECT_LT(900u, places.size()) << begin;
  }
}

TEST(axsTextHash_, equal_texts_have_one_value_wherever_they_stand)
{
  for (std::size_t length = 0; length < 40; ++length)
  {
    std::string const text(length, 'x');
    std::string const longer = "y" + text + "z";
    EXPECT_EQ(axsTextHash()(text), axsTextHash()(std::string_view(longer).substr(1, length))) << length;
    EXPECT_NE(axsTextHash()(text), axsTextHash()(text + 'x')) << length;
  }
}
