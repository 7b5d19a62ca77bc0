#include <axsTextScan.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{
using axsTextScan::Way;

class axsTextScan_ways : public testing::TestWithParam<Way>
{
protected:
  static std::ptrdiff_t length(std::string_view text)
  {
    std::string const bytes = std::string(text) + std::string(1 + axsTextScan::overreach, '\0');
    std::ptrdiff_t const found = GetParam()(bytes.data()) - bytes.data();
    EXPECT_EQ(axsTextScan::end(bytes.data()) - bytes.data(), found);
    return found;
  }

  static bool is_end(char c)
  {
    auto const byte = static_cast<unsigned char>(c);
    return c == '<' || c == '&' || c == ']' || (byte < 0x20 && c != '\t' && c != '\n');
  }
};

std::string const ways[] = {"words", "blocks", "fastest"};
}

TEST_P(axsTextScan_ways, stops_at_what_ends_text_and_at_nothing_else)
{
  for (int byte = 0; byte < 256; ++byte)
    for (std::size_t place = 0; place < 100; ++place)
    {
      std::string text(100, 'x');
      text[place] = static_cast<char>(byte);
      ASSERT_EQ(length(text), is_end(text[place]) ? static_cast<std::ptrdiff_t>(place) : 100)
        << byte << " at " << place;
    }
}

TEST_P(axsTextScan_ways, stops_at_the_first_of_many)
{
  for (std::size_t place = 0; place < 100; ++place)
    EXPECT_EQ(length(std::string(place, '\n') + "<]&\r"), static_cast<std::ptrdiff_t>(place));
}

TEST_P(axsTextScan_ways, moves_over_characters_beyond_ascii)
{
  std::string text;
  for (int round = 0; round < 40; ++round)
    text += "\xC2\x85\xE6\xBC\xA2\xF0\x9F\x98\x80";
  EXPECT_EQ(length(text + "<"), static_cast<std::ptrdiff_t>(text.size()));
}

INSTANTIATE_TEST_SUITE_P(axsTextScan, axsTextScan_ways,
  testing::Values(axsTextScan::end_by_words, axsTextScan::end_by_blocks, axsTextScan::fastest()),
  [](testing::TestParamInfo<Way> const& way) { return ways[way.index]; });
