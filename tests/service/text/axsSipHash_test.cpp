#include "axsSipHash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace
{
// The bytes 0, 1, 2 and so on.
std::string counted(std::size_t length)
{
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i)
    bytes += static_cast<char>(i);
  return bytes;
}

std::uint64_t const key_0 = 0x0706050403020100u;
std::uint64_t const key_1 = 0x0F0E0D0C0B0A0908u;
}

// The example of the paper, appendix A.
TEST(axsSipHash_, gives_the_value_that_its_authors_give)
{
  axsSipHash<2, 4> const hash(key_0, key_1);
  EXPECT_EQ(hash(counted(15)), 0xA129CA6149BE45E5u);
}

TEST(axsSipHash_, depends_on_the_rounds_the_key_and_every_byte)
{
  std::set<std::uint64_t> values;
  std::size_t count = 0;
  for (std::size_t length = 0; length < 40; ++length)
  {
    std::string text = counted(length);
    values.insert(axsSipHash<1, 3>(key_0, key_1)(text));
    values.insert(axsSipHash<2, 4>(key_0, key_1)(text));
    values.insert(axsSipHash<1, 3>(key_0 + 1, key_1)(text));
    values.insert(axsSipHash<1, 3>(key_0, key_1 + 1)(text));
    count += 4;
    for (char& byte : text)
    {
      byte = static_cast<char>(byte ^ 0x80);
      values.insert(axsSipHash<1, 3>(key_0, key_1)(text));
      byte = static_cast<char>(byte ^ 0x80);
      ++count;
    }
  }
  EXPECT_EQ(values.size(), count);
}
