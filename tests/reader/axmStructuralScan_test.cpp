#include "axmStructuralScan.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>

namespace
{
class StructuralScan : public testing::TestWithParam<axmStructuralScan::Way>
{
};

bool bit(std::uint64_t const* found, int i)
{
  return (found[i / axmStructuralScan::mask_bytes] >> (i % axmStructuralScan::mask_bytes) & 1) != 0;
}

// Compares what is found in `text` with a look at each character.
void check(axmStructuralScan::Way find, std::string const& text, std::size_t offset)
{
  std::uint64_t found[axmStructuralScan::masks];
  find(text.data() + offset, found);
  for (int i = 0; i < axmStructuralScan::bytes; ++i)
  {
    char const c = text[offset + static_cast<std::size_t>(i)];
    ASSERT_EQ(bit(found, i), c == '<' || c == '>' || c == '\0') << i << " " << static_cast<int>(c);
  }
}
}

TEST_P(StructuralScan, every_byte_in_every_place_of_a_mask)
{
  std::string text(axmStructuralScan::bytes, 'a');
  for (int code = 0; code < 256; ++code)
    for (std::size_t at = 0; at < 2 * axmStructuralScan::mask_bytes; ++at)
    {
      text[at] = static_cast<char>(code);
      std::uint64_t found[axmStructuralScan::masks];
      GetParam()(text.data(), found);
      bool const expected = code == '<' || code == '>' || code == 0;
      ASSERT_EQ(bit(found, static_cast<int>(at)), expected) << code << " at " << at;
      found[at / axmStructuralScan::mask_bytes] &= ~(std::uint64_t(1) << at % axmStructuralScan::mask_bytes);
      for (std::uint64_t const mask : found)
        ASSERT_EQ(mask, 0u) << code << " at " << at;
      text[at] = 'a';
    }
}

TEST_P(StructuralScan, random_bytes_at_every_alignment)
{
  std::mt19937 random(1);
  for (int round = 0; round < 20; ++round)
  {
    std::string text(axmStructuralScan::bytes + 64, '\0');
    for (char& c : text)
      c = static_cast<char>(round % 2 == 0 ? random() : static_cast<unsigned>("<>\0=?;~|a"[random() % 9]));
    for (std::size_t offset = 0; offset < 64; ++offset)
      check(GetParam(), text, offset);
  }
}

INSTANTIATE_TEST_SUITE_P(ways, StructuralScan,
  testing::Values(axmStructuralScan::find_by_words, axmStructuralScan::find_by_blocks, axmStructuralScan::fastest(),
    axmStructuralScan::find));
