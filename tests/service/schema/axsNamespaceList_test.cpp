#include <axsNamespaceList.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{
std::string name(std::size_t number)
{
  return number == 0 ? std::string() : "urn:" + std::to_string(number);
}

std::string shown(axsNamespaceList const& list)
{
  std::string text;
  for (std::string_view const name : list.names())
    text += (text.empty() ? "" : " ") + std::string(name.empty() ? "-" : name);
  return text;
}
}

TEST(axsNamespaceList, each_name_is_there_once)
{
  axsNamespaceList const list({"b", "", "a", "b", ""});
  EXPECT_EQ(shown(list), "- a b");
  EXPECT_EQ(list.size(), 3U);
  EXPECT_TRUE(list.has("") && list.has("a") && list.has("b"));
  EXPECT_FALSE(list.has("c"));
  EXPECT_TRUE(axsNamespaceList().empty());
}

TEST(axsNamespaceList, what_was_left_out_may_come_back)
{
  axsNamespaceList const list({"a", "b", "c"});
  axsNamespaceList const shorter = list.without("b").without("x");
  EXPECT_EQ(shown(shorter), "a c");
  EXPECT_EQ(shown(shorter.with(axsNamespaceList({"b"}))), "a b c");
  EXPECT_EQ(shorter.with(list), list);
  EXPECT_NE(shorter, list);
  EXPECT_FALSE(shorter.has_all_of(list));
  EXPECT_TRUE(list.has_all_of(shorter));
}

// Held against plain sets of the same names.
TEST(axsNamespaceList, lists_that_share_names_are_sets)
{
  using Names = std::set<std::string>;
  std::mt19937 random(7);
  std::vector<std::pair<axsNamespaceList, Names>> all(1);
  for (int i = 0; i < 3000; ++i)
  {
    auto const& [list, names] = all[random() % all.size()];
    auto const& [other, other_names] = all[random() % all.size()];
    axsNamespaceList made;
    Names expected;
    switch (random() % 4)
    {
    case 0:
      expected = {name(random() % 40), name(random() % 40), name(random() % 40)};
      made = axsNamespaceList({expected.begin(), expected.end()});
      break;
    case 1:
      expected = names;
      expected.insert(other_names.begin(), other_names.end());
      made = list.with(other);
      break;
    case 2:
      for (std::string const& each : names)
        if (other_names.count(each) != 0)
          expected.insert(each);
      made = list.common_with(other);
      break;
    default:
      std::string const gone = name(random() % 40);
      expected = names;
      expected.erase(gone);
      made = list.without(gone);
    }
    ASSERT_EQ(made.size(), expected.size());
    std::vector<std::string_view> const found = made.names();
    ASSERT_TRUE(std::equal(found.begin(), found.end(), expected.begin(), expected.end()));
    for (std::size_t number = 0; number < 40; ++number)
      ASSERT_EQ(made.has(name(number)), expected.count(name(number)) != 0);
    ASSERT_EQ(made == list, expected == names);
    bool const has_all = std::includes(expected.begin(), expected.end(), other_names.begin(), other_names.end());
    ASSERT_EQ(made.has_all_of(other), has_all);
    all.emplace_back(std::move(made), std::move(expected));
  }
}

// A name of a copy lies where that of the original does.
TEST(axsNamespaceList, a_list_that_is_little_more_or_less_shares_the_names)
{
  std::vector<std::string> many;
  for (std::size_t i = 1; i <= 5000; ++i)
    many.push_back(name(i));
  axsNamespaceList const list(many);
  auto const shared_with_list = [&](axsNamespaceList const& other)
  {
    std::set<char const*> places;
    for (std::string_view const each : list.names())
      places.insert(each.data());
    std::size_t count = 0;
    for (std::string_view const each : other.names())
      count += places.count(each.data());
    return count;
  };
  EXPECT_EQ(shared_with_list(list), 5000U);
  EXPECT_EQ(shared_with_list(list.with(axsNamespaceList({"urn:x"}))), 5000U);
  EXPECT_EQ(shared_with_list(axsNamespaceList({"urn:x"}).with(list)), 5000U);
  EXPECT_EQ(shared_with_list(list.without("urn:1")), 4999U);
  EXPECT_EQ(shared_with_list(list.common_with(list.with(axsNamespaceList({"urn:x"})))), 5000U);

  // In a chain, few names are copied at each step.
  axsNamespaceList chain;
  std::set<char const*> places;
  std::vector<axsNamespaceList> kept;
  for (std::string const& each : many)
  {
    chain = chain.with(axsNamespaceList({each}));
    kept.push_back(chain);
  }
  for (std::size_t i = 0; i < kept.size(); i += 100)
    for (std::string_view const each : kept[i].names())
      places.insert(each.data());
  EXPECT_LT(places.size(), 5000U * 13);
}
