#include "axsNameCache.h"

#include "axsName.h"
#include "axsNameTable.h"
#include "axsNames.h"

#include <apByteBlock.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
// Knows how often it was asked.
class Names final : public axsNames
{
public:
  axsName const& name(std::string_view text) override
  {
    ++asked;
    return table.intern(text);
  }

  int asked = 0;

private:
  axsNameTable table;
};
}

TEST(axsNameCache, finds_each_name_again_and_asks_for_it_once)
{
  Names names;
  axsNameCache cache(names);
  std::vector<axsQName*> found;
  int const count = 3000;
  auto const text = [](int i) { return std::string(static_cast<std::size_t>(i % 20 + 1), 'a') + std::to_string(i); };
  for (int i = 0; i < count; ++i)
    found.push_back(&cache.find(text(i)));
  for (int i = 0; i < count; ++i)
  {
    EXPECT_EQ(&cache.find(text(i)), found[static_cast<std::size_t>(i)]);
    EXPECT_EQ(found[static_cast<std::size_t>(i)]->name->utf8(), text(i));
  }
  EXPECT_EQ(names.asked, count);
}

TEST(axsNameCache, tells_names_of_all_lengths_apart)
{
  Names names;
  axsNameCache cache(names);
  for (std::size_t length = 1; length < 40; ++length)
    for (std::size_t place = 0; place < length; ++place)
      for (char const c : {'b', 'c'})
      {
        std::string text(length, 'a');
        text[place] = c;
        EXPECT_EQ(cache.find(text).name->utf8(), text);
      }
}

TEST(axsNameCache, knows_what_namespaces_make_of_a_name)
{
  Names names;
  axsNameCache cache(names);
  axsQName const& plain = cache.find("a");
  EXPECT_EQ(plain.prefix, nullptr);
  EXPECT_EQ(plain.declared, nullptr);
  EXPECT_TRUE(plain.is_qualified);

  axsQName const& prefixed = cache.find("p:a");
  ASSERT_NE(prefixed.prefix, nullptr);
  EXPECT_EQ(prefixed.prefix->text, "p");
  EXPECT_EQ(prefixed.prefix, cache.find("p:b").prefix);
  EXPECT_EQ(prefixed.prefix, cache.find("xmlns:p").declared);
  EXPECT_NE(prefixed.prefix, cache.find("q:a").prefix);
  EXPECT_EQ(prefixed.declared, nullptr);
  EXPECT_TRUE(prefixed.is_qualified);

  ASSERT_NE(cache.find("xmlns").declared, nullptr);
  EXPECT_EQ(cache.find("xmlns").declared->text, "");
  EXPECT_EQ(cache.find("xmlns").prefix, nullptr);
  EXPECT_EQ(cache.find("xml:a").prefix->bound.size(), 1u);
  EXPECT_TRUE(cache.find("xmlns:a").prefix->bound.empty());
  for (char const* const text : {":a", "a:", "a:b:c", ":", "a::b", "a:1", "a:-"})
    EXPECT_FALSE(cache.find(text).is_qualified) << text;
}

namespace
{
// What a document has from a name on, with what may be read after its end.
std::string padded(std::string const& text)
{
  return text + std::string(1 + apByteBlock::size, '\0');
}

// How many bytes of `text` the expected name takes, after "first" and then `name` have been read twice; -1 if none.
int expected_in(std::string const& name, std::string const& text)
{
  Names names;
  axsNameCache cache(names);
  cache.find("first");
  axsQName const& following = cache.find(name);
  cache.find("first");
  std::string const bytes = padded(text);
  char const* p = bytes.data();
  axsQName const* const found = cache.expected(p);
  EXPECT_EQ(found == nullptr, p == bytes.data());
  EXPECT_TRUE(found == nullptr || found == &following);
  return found == nullptr ? -1 : static_cast<int>(p - bytes.data());
}
}

TEST(axsNameCache, expects_the_name_that_followed_before)
{
  std::string const long_name = "a:name-of_more.than_16_bytes";
  for (std::size_t length = 3; length <= long_name.size(); ++length)
  {
    std::string const name = long_name.substr(0, length);
    for (char const* const after : {" ", "=", ">", "/>", "\n", "?", "<"})
      EXPECT_EQ(expected_in(name, name + after), static_cast<int>(length)) << name << after;
    // A longer name, the end of what is in memory, a letter beyond ASCII.
    for (char const* const after : {"x=", ":=", "-=", "", "\xC3\xA4="})
      EXPECT_EQ(expected_in(name, name + after), -1) << name << after;
    for (std::size_t place = 0; place < length; ++place)
    {
      std::string other = name + "=";
      other[place] = 'X';
      EXPECT_EQ(expected_in(name, other), -1) << other;
      EXPECT_EQ(expected_in(name, name.substr(0, place)), -1);
    }
  }
  EXPECT_EQ(expected_in("n\xC3\xA4me", "n\xC3\xA4me="), 5);
}

TEST(axsNameCache, expects_nothing_at_first_and_learns_another_order)
{
  Names names;
  axsNameCache cache(names);
  std::string const bytes = padded("a=");
  char const* p = bytes.data();
  EXPECT_EQ(cache.expected(p), nullptr);
  axsQName const& a = cache.find("a");
  cache.find("b");
  EXPECT_EQ(cache.expected(p), nullptr);
  cache.find("a");
  EXPECT_EQ(cache.expected(p), nullptr);
  cache.find("b");
  EXPECT_EQ(cache.expected(p), &a);
  p = bytes.data();
  // Now b follows a, and a follows b.
  EXPECT_EQ(cache.expected(p), nullptr);
}
