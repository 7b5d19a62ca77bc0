#include "axmMarks.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{
class Marks : public testing::TestWithParam<axmMarks::Way>
{
protected:
  Marks() : before(axmMarks::chosen()) {}
  ~Marks() override { axmMarks::choose(before); }

  axmMarks::Way const before;
};

bool bit(std::uint64_t const* masks, int i)
{
  return (masks[i / axmMarks::block_bytes] >> (i % axmMarks::block_bytes) & 1) != 0;
}

// The ways of this machine.
std::vector<axmMarks::Way> ways()
{
  std::vector<axmMarks::Way> found;
  for (axmMarks::Way const way : {axmMarks::words, axmMarks::sse2, axmMarks::avx2})
    if (axmMarks::has(way))
      found.push_back(way);
  return found;
}

// Compares the marks that are found in `text` with a look at each character.
void check(std::string const& text, std::size_t offset)
{
  std::uint64_t masks[axmMarks::blocks];
  axmMarks::find(text.data() + offset, masks);
  for (int i = 0; i < axmMarks::bytes; ++i)
  {
    char const c = text[offset + static_cast<std::size_t>(i)];
    ASSERT_EQ(bit(masks, i), c == '<' || c == '>' || c == '\0') << i << " " << static_cast<int>(c);
  }
}
}

TEST_P(Marks, every_byte_in_every_place_of_a_block)
{
  axmMarks::choose(GetParam());
  ASSERT_EQ(axmMarks::chosen(), GetParam());
  std::string text(axmMarks::bytes, 'a');
  for (int code = 0; code < 256; ++code)
    for (std::size_t at = 0; at < 2 * axmMarks::block_bytes; ++at)
    {
      text[at] = static_cast<char>(code);
      std::uint64_t masks[axmMarks::blocks];
      axmMarks::find(text.data(), masks);
      bool const expected = code == '<' || code == '>' || code == 0;
      ASSERT_EQ(bit(masks, static_cast<int>(at)), expected) << code << " at " << at;
      masks[at / axmMarks::block_bytes] &= ~(std::uint64_t(1) << at % axmMarks::block_bytes);
      for (std::uint64_t const mask : masks)
        ASSERT_EQ(mask, 0u) << code << " at " << at;
      text[at] = 'a';
    }
}

TEST_P(Marks, random_bytes_at_every_alignment)
{
  axmMarks::choose(GetParam());
  std::mt19937 random(1);
  for (int round = 0; round < 20; ++round)
  {
    std::string text(axmMarks::bytes + 64, '\0');
    for (char& c : text)
      c = static_cast<char>(round % 2 == 0 ? random() : static_cast<unsigned>("<>\0=?;~|a"[random() % 9]));
    for (std::size_t offset = 0; offset < 64; ++offset)
      check(text, offset);
  }
}

INSTANTIATE_TEST_SUITE_P(ways, Marks, testing::ValuesIn(ways()));

TEST(axmMarks, every_machine_has_words)
{
  EXPECT_TRUE(axmMarks::has(axmMarks::words));
  EXPECT_TRUE(axmMarks::has(axmMarks::chosen()));
}
