#include "axsWindow.h"

#include "axsSource.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string const text = []
{
  std::string made;
  for (int i = 0; made.size() < 500000; ++i)
    made += std::to_string(i) + ' ';
  return made;
}();
}

TEST(axsWindow, moves_over_a_source)
{
  apByteArray const bytes(text.data(), text.size());
  for (std::size_t const step : {50000u, 33000u, 65536u})
  {
    axsSource source(bytes);
    axsWindow window(source);
    std::string seen;
    while (true)
    {
      ASSERT_EQ(*window.end(), '\0');
      ASSERT_EQ(std::string_view(window.begin(), static_cast<std::size_t>(window.end() - window.begin())),
        std::string_view(text).substr(seen.size(), static_cast<std::size_t>(window.end() - window.begin())));
      if (window.is_last())
        break;
      seen.append(window.begin(), step);
      EXPECT_EQ(window.advance(window.begin() + step), window.begin());
    }
    seen.append(window.begin(), window.end());
    EXPECT_EQ(seen, text);
    EXPECT_EQ(window.capacity(), 65536u);
  }
}

TEST(axsWindow, grows_where_little_is_let_go)
{
  apByteArray const bytes(text.data(), text.size());
  axsSource source(bytes);
  axsWindow window(source);
  while (!window.is_last())
  {
    auto const before = window.end() - window.begin();
    window.advance(window.begin());
    EXPECT_TRUE(window.end() - window.begin() > before || window.is_last());
  }
  EXPECT_EQ(std::string_view(window.begin(), text.size()), text);
  EXPECT_EQ(window.end(), window.begin() + text.size());
}

TEST(axsWindow, ends_with_its_source)
{
  for (std::size_t const size : {0u, 1u, 65535u, 65536u, 65537u})
  {
    apByteArray const bytes(text.data(), size);
    axsSource source(bytes);
    axsWindow window(source);
    if (!window.is_last())
      window.advance(window.end());
    if (!window.is_last())
      window.advance(window.end());
    EXPECT_TRUE(window.is_last()) << size;
    EXPECT_EQ(*window.end(), '\0');
  }
}
