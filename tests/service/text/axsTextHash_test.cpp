#include "axsTextHash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace
{
// Similar texts of every length up to 40: one byte of each differs from the same letters.
std::vector<std::string> similar_texts()
{
  std::vector<std::string> texts;
  for (std::size_t length = 0; length <= 40; ++length)
  {
    std::string text(length, 'a');
    texts.push_back(text);
    for (char& byte : text)
    {
      for (char const other : {'b', '\0', '\xE1'})
      {
        byte = other;
        texts.push_back(text);
      }
      byte = 'a';
    }
  }
  return texts;
}

std::size_t count_of_values(axsTextHash const& hash, std::vector<std::string> const& texts, std::size_t mask)
{
  std::set<std::size_t> values;
  for (std::string const& text : texts)
    values.insert(hash(text) & mask);
  return values.size();
}
}

// The keys are fixed, so that the outcome is as well.
TEST(axsTextHash_, similar_texts_have_values_of_their_own)
{
  std::vector<std::string> const texts = similar_texts();
  for (std::uint64_t seed = 0; seed < 20; ++seed)
  {
    axsHashKey const key(seed, ~seed);
    EXPECT_EQ(count_of_values(axsTextHash(key), texts, 0xFFFFFFFF), texts.size()) << seed;
  }
}

// Of 1,000 random values, about 7 of 1,000 fall on another one in 65,536 places.
TEST(axsTextHash_, lower_bits_alone_keep_similar_texts_apart)
{
  for (std::uint64_t seed = 0; seed < 20; ++seed)
  {
    axsHashKey const key(seed, ~seed);
    for (std::string const begin : {"", "abc", "abcdefg", "a_longer_name_than_two_words"})
    {
      std::vector<std::string> texts;
      for (int i = 0; i < 1000; ++i)
        texts.push_back(begin + std::to_string(i));
      EXPECT_LT(970u, count_of_values(axsTextHash(key), texts, 0xFFFF)) << begin << ' ' << seed;
    }
  }
}

// Texts that collide under one key, as somebody may have found them, are apart under another one.
TEST(axsTextHash_, texts_that_fall_together_under_one_key_are_apart_under_others)
{
  axsHashKey const known(1, 2);
  std::vector<std::string> together;
  for (int i = 0; together.size() < 64; ++i)
    if (std::string const text = "n" + std::to_string(i); (axsTextHash(known)(text) & 0x3FF) == 0)
      together.push_back(text);
  ASSERT_EQ(count_of_values(axsTextHash(known), together, 0x3FF), 1u);
  for (std::uint64_t seed = 3; seed < 23; ++seed)
  {
    axsHashKey const other(seed, 2);
    EXPECT_LT(50u, count_of_values(axsTextHash(other), together, 0x3FF)) << seed;
  }
}

TEST(axsTextHash_, the_key_of_the_process_is_drawn_once)
{
  EXPECT_EQ(axsTextHash()("name"), axsTextHash()("name"));
  EXPECT_EQ(&axsHashKey::of_process(), &axsHashKey::of_process());
}

TEST(axsTextHash_, equal_texts_have_one_value_wherever_they_stand)
{
  axsHashKey const key(1, 2);
  axsTextHash const hash(key);
  for (std::size_t length = 0; length < 40; ++length)
  {
    std::string const text(length, 'x');
    std::string const longer = "y" + text + "z";
    EXPECT_EQ(hash(text), hash(std::string_view(longer).substr(1, length))) << length;
    EXPECT_NE(hash(text), hash(text + 'x')) << length;
  }
}
