#include "axsInputBuffer.h"

#include "axsReadError.h"
#include "axsSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

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

TEST(axsInputBuffer, moves_over_a_source)
{
  apByteArray const bytes(text.data(), text.size());
  for (std::size_t const step : {50000u, 33000u, 65536u})
  {
    axsSource source(bytes);
    axsInputBuffer window(source);
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

TEST(axsInputBuffer, grows_where_little_is_let_go)
{
  apByteArray const bytes(text.data(), text.size());
  axsSource source(bytes);
  axsInputBuffer window(source);
  while (!window.is_last())
  {
    auto const before = window.end() - window.begin();
    window.advance(window.begin());
    EXPECT_TRUE(window.end() - window.begin() > before || window.is_last());
  }
  EXPECT_EQ(std::string_view(window.begin(), text.size()), text);
  EXPECT_EQ(window.end(), window.begin() + text.size());
}

TEST(axsInputBuffer, ends_with_its_source)
{
  for (std::size_t const size : {0u, 1u, 65535u, 65536u, 65537u})
  {
    apByteArray const bytes(text.data(), size);
    axsSource source(bytes);
    axsInputBuffer window(source);
    if (!window.is_last())
      window.advance(window.end());
    if (!window.is_last())
      window.advance(window.end());
    EXPECT_TRUE(window.is_last()) << size;
    EXPECT_EQ(*window.end(), '\0');
  }
}

TEST(axsInputBuffer, knows_the_place_of_every_character)
{
  std::string lines;
  for (int i = 0; lines.size() < 200000; ++i)
    lines += std::string(static_cast<std::size_t>(i) % 70, 'x') + (i % 3 == 0 ? "\r\n" : i % 3 == 1 ? "\n" : "\r");
  apByteArray const bytes(lines.data(), lines.size());
  for (std::size_t const step : {50000u, 49999u, 33001u, 65536u})
  {
    axsSource source(bytes);
    axsInputBuffer buffer(source);
    axsPlace expected;
    while (true)
    {
      std::size_t const left = static_cast<std::size_t>(buffer.end() - buffer.begin());
      for (char const* at = buffer.begin(); at != buffer.begin() + std::min(step, left); ++at)
      {
        ASSERT_EQ(buffer.place(at).line, expected.line) << buffer.position(at);
        ASSERT_EQ(buffer.place(at).column, expected.column) << buffer.position(at);
        std::size_t const position = buffer.position(at);
        bool const is_half = lines[position] == '\n' && position > 0 && lines[position - 1] == '\r';
        bool const is_end = lines[position] == '\n' || lines[position] == '\r';
        expected.line += is_end && !is_half ? 1 : 0;
        expected.column = is_end ? 1 : expected.column + 1;
      }
      // Asked for what was before, it goes back.
      EXPECT_EQ(buffer.place(buffer.begin()).line <= expected.line, true);
      if (buffer.is_last() && left <= step)
        break;
      buffer.advance(buffer.begin() + std::min(step, left));
    }
  }
}

TEST(axsInputBuffer, knows_places_without_being_asked_before)
{
  std::string lines;
  for (int i = 0; i < 100000; ++i)
    lines += "ab\n";
  lines += "<";
  apByteArray const bytes(lines.data(), lines.size());
  axsSource source(bytes);
  axsInputBuffer buffer(source);
  while (!buffer.is_last())
    buffer.advance(buffer.end() - 1);
  EXPECT_EQ(buffer.place(buffer.end() - 1), (axsPlace{100001, 1}));
  EXPECT_EQ(buffer.place(buffer.end()), (axsPlace{100001, 2}));
}

TEST(axsInputBuffer, knows_a_drawn_place_from_whichever_side_is_nearer)
{
  std::mt19937 draw(1);
  std::string lines;
  std::vector<axsPlace> places;
  axsPlace here;
  while (lines.size() < 300000)
  {
    std::size_t const kind = draw() % 40;
    std::string const more = kind < 3 ? std::string("\r\n\n", kind, 2) : kind < 5 ? "\xE4\xB8\xAD" : "a";
    for (char const c : more)
    {
      places.push_back(here);
      bool const is_half = c == '\n' && !lines.empty() && lines.back() == '\r';
      bool const is_end = c == '\n' || c == '\r';
      here.line += is_end && !is_half ? 1 : 0;
      here.column = is_end ? 1 : here.column + ((c & '\xC0') != '\x80' ? 1 : 0);
      lines += c;
    }
  }
  apByteArray const bytes(lines.data(), lines.size());
  axsSource source(bytes);
  axsInputBuffer buffer(source);
  axsInputBuffer::Mark const begin = buffer.mark(buffer.begin());
  auto const check = [&](char const* at)
  {
    std::size_t const position = static_cast<std::size_t>(buffer.position(at));
    if ((lines[position] & '\xC0') != '\x80')
    {
      ASSERT_EQ(buffer.place(at), places[position]) << position;
    }
  };
  // Once more after going back, when lines are no longer counted as they are read.
  for (int time = 0; time < 2; ++time)
  {
    while (!buffer.is_last())
    {
      for (int i = 0; i < 5; ++i)
        check(buffer.begin() + draw() % static_cast<std::size_t>(buffer.end() - buffer.begin()));
      char const* from = buffer.begin() + draw() % static_cast<std::size_t>(buffer.end() - buffer.begin());
      while ((*from & '\xC0') == '\x80')
        --from;
      buffer.advance(from);
    }
    buffer.return_to(begin);
  }
}

TEST(axsInputBuffer, has_no_byte_order_mark)
{
  std::string const marked = "\xEF\xBB\xBF<r/>";
  apByteArray const bytes(marked.data(), marked.size());
  axsSource source(bytes);
  axsInputBuffer buffer(source);
  EXPECT_EQ(std::string_view(buffer.begin(), static_cast<std::size_t>(buffer.end() - buffer.begin())), "<r/>");
  EXPECT_EQ(buffer.place(buffer.begin()), (axsPlace{1, 1}));
  EXPECT_EQ(buffer.encoding().name, "UTF-8");
}

TEST(axsInputBuffer, gives_what_stands_before_an_illegal_byte_and_tells_of_it_then)
{
  std::string const text(100000, 'x');
  for (std::string const& before : {std::string(), std::string("<r>\n\xC3\xA4"), text + "\n\xC3\xA4"})
    for (std::string const& wrong : {std::string("\xFF"), std::string("\xC3"), std::string(1, '\0'), "\xE4" + text})
    {
      std::string const document = before + wrong;
      apByteArray const bytes(document.data(), document.size());
      axsSource source(bytes);
      axsInputBuffer buffer(source);
      std::string seen;
      axsReadError error;
      try
      {
        while (true)
        {
          ASSERT_FALSE(buffer.is_last());
          seen.append(buffer.begin(), buffer.end());
          buffer.advance(buffer.end());
        }
      }
      catch (axsReadError const& thrown)
      {
        error = thrown;
      }
      EXPECT_EQ(seen, before);
      EXPECT_EQ(error.line, before.empty() ? 1 : 2);
      EXPECT_EQ(error.column, before.empty() ? 1 : 2);
      std::string const words = error.message.to_utf8().c_str();
      EXPECT_EQ(words.find(wrong[0] == '\0' ? "A zero byte" : "The byte 0x"), 0u) << words;
    }
}
