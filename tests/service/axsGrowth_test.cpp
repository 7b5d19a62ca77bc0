#include "Engine.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

// Nothing is timed here: with so many nodes, an operation whose time grows with their number would not end before the
// runner's limit.
namespace
{
int const many = 300000;

std::shared_ptr<axmElement> wide_element(int children)
{
  std::string xml = "<r>";
  for (int i = 0; i < children; ++i)
    xml += "<e/>";
  return load_root(xml + "</r>");
}

std::shared_ptr<axmElement> chain(int levels)
{
  std::string xml;
  for (int i = 0; i < levels; ++i)
    xml += "<e>";
  for (int i = 0; i < levels; ++i)
    xml += "</e>";
  return load_root(xml);
}

std::shared_ptr<axmElement> make(std::shared_ptr<axmElement> const& like, char const* name)
{
  return like->getOwnerDocument()->createElement(wide(name));
}
}

TEST(axsGrowth, appending_takes_no_longer_with_a_child_list_of_every_element_held)
{
  auto const root = wide_element(0);
  std::vector<std::shared_ptr<axmNodeList>> lists;
  lists.reserve(many);
  for (int i = 0; i < many; ++i)
  {
    auto const child = make(root, "e");
    root->appendChild(child);
    lists.push_back(child->getChildNodes());
    child->appendChild(make(root, "f"));
  }
  EXPECT_EQ(lists.back()->length(), 1);
  EXPECT_EQ(lists.front()->length(), 1);
}

TEST(axsGrowth, appending_downwards_takes_no_longer_with_lists_held)
{
  auto const root = wide_element(0);
  std::vector<std::shared_ptr<axmNodeList>> lists;
  auto const all = root->selectNodes(APSTRING("descendant-or-self::*"));
  std::shared_ptr<axmNode> at = root;
  for (int i = 0; i < many; ++i)
  {
    lists.push_back(at->getChildNodes());
    auto const child = make(root, "e");
    at->appendChild(child);
    at = child;
  }
  EXPECT_EQ(lists.front()->at(0), root->getFirstChild());
}

TEST(axsGrowth, a_new_list_for_each_child_takes_no_longer_than_one)
{
  int const children = 2 * many;
  auto const root = wide_element(children);
  int found = 0;
  for (int i = 0; i < children; ++i)
    found += root->getChildNodes()->at(i) != nullptr && root->getChildNodes()->length() == children ? 1 : 0;
  EXPECT_EQ(found, children);
}

TEST(axsGrowth, a_result_is_walked_down_and_up_a_chain)
{
  auto const root = chain(many);
  auto const found = root->selectNodes(APSTRING("//e"));
  ASSERT_EQ(found->length(), many);
  for (int i = 0; i < many; ++i)
    ASSERT_NE(found->at(i), nullptr);
  for (int i = many - 1; i >= 0; --i)
    ASSERT_NE(found->at(i), nullptr);
}

TEST(axsGrowth, children_are_inserted_and_removed_beside_the_place_of_a_walk)
{
  int const children = 2 * many;
  auto const root = wide_element(children);
  auto const list = root->getChildNodes();
  for (int i = 0; i < list->length(); i += 2)
    root->insertBefore(make(root, "n"), list->at(i));
  ASSERT_EQ(list->length(), 2 * children);
  EXPECT_EQ(narrow(list->at(2 * children - 2)->getNodeName()), "n");
  for (int i = 0; i < list->length(); ++i)
    root->removeChild(list->at(i));
  ASSERT_EQ(list->length(), children);
  EXPECT_EQ(narrow(list->at(children / 2)->getNodeName()), "e");
}

TEST(axsGrowth, children_are_found_and_changed_in_any_order)
{
  auto const root = wide_element(many);
  auto const list = root->getChildNodes();
  std::mt19937 random(1);
  for (int i = 0; i < many; ++i)
  {
    int const from = static_cast<int>(random() % static_cast<unsigned>(many));
    int const to = static_cast<int>(random() % static_cast<unsigned>(many));
    auto const moved = root->removeChild(list->at(from));
    root->insertBefore(moved, list->at(to));
  }
  EXPECT_EQ(list->length(), many);
}

TEST(axsGrowth, attributes_are_set_found_and_removed_however_many_there_are)
{
  int const attributes = many;
  auto const root = wide_element(0);
  auto const name = [](int i) { return apString::from_utf8("a" + std::to_string(i)); };
  for (int i = 0; i < attributes; ++i)
    root->setAttribute(name(i), APSTRING("1"));
  for (int i = 0; i < attributes; ++i)
    ASSERT_TRUE(root->hasAttribute(name(i)));
  for (int i = 0; i < attributes; ++i)
    ASSERT_NE(root->getAttributes()->item(i), nullptr);
  EXPECT_EQ(root->getAttributes()->getLength(), attributes);
  auto const map = root->getAttributes();
  for (int i = 0; i < map->getLength(); ++i)
    map->removeNamedItem(map->item(i)->getNodeName());
  EXPECT_EQ(map->getLength(), attributes / 2);
  for (int i = attributes - 1; i >= 0; --i)
    root->removeAttribute(name(i));
  EXPECT_FALSE(root->hasAttributes());
}

TEST(axsGrowth, attributes_of_one_element_are_walked_while_another_one_changes)
{
  int const attributes = 500000;
  std::string xml = "<r><o/><e";
  for (int i = 0; i < attributes; ++i)
    xml += " a" + std::to_string(i) + "=''";
  auto const root = load_root(xml + "/></r>");
  auto const other = root->getChildNodes()->at(0);
  auto const map = root->getLastChild()->getAttributes();
  for (int i = 0; i < attributes; ++i)
  {
    other->setAttribute(APSTRING("x"), APSTRING("1"));
    ASSERT_NE(map->item(i), nullptr);
    other->removeAttribute(APSTRING("x"));
  }
}

// What is found by position, against a model.

TEST(axsGrowth, a_child_list_agrees_with_a_model_whatever_changes)
{
  for (unsigned seed = 0; seed < 40; ++seed)
  {
    std::mt19937 random(seed);
    auto const below = [&](std::size_t bound) { return bound == 0 ? 0 : random() % bound; };
    auto const root = wide_element(static_cast<int>(below(1500)));
    std::vector<std::shared_ptr<axmNode>> model;
    for (auto child = root->getFirstChild(); child != nullptr; child = child->getNextSibling())
      model.push_back(child);
    auto held = root->getChildNodes();
    for (int step = 0; step < 1500; ++step)
    {
      std::size_t const place = below(model.size());
      switch (model.empty() ? 0 : below(8))
      {
      case 0:
      {
        auto const made = make(root, "n");
        bool const is_last = model.empty() || below(4) == 0;
        root->insertBefore(made, is_last ? nullptr : model[place]);
        model.insert(is_last ? model.end() : model.begin() + static_cast<std::ptrdiff_t>(place), made);
        break;
      }
      case 1:
        root->removeChild(model[place]);
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
        break;
      case 2:
        held = root->getChildNodes();
        break;
      case 3:
        ASSERT_EQ(held->length(), static_cast<int>(model.size())) << seed;
        break;
      default:
        ASSERT_TRUE(*held->at(static_cast<int>(place)) == *model[place]) << seed << ' ' << step;
      }
    }
    EXPECT_EQ(held->at(static_cast<int>(model.size())), nullptr);
    for (std::size_t i = 0; i < model.size(); ++i)
      ASSERT_TRUE(*held->at(static_cast<int>(i)) == *model[i]) << seed;
  }
}

TEST(axsGrowth, many_attributes_agree_with_a_model_whatever_changes)
{
  for (unsigned seed = 0; seed < 20; ++seed)
  {
    std::mt19937 random(seed);
    auto const below = [&](std::size_t bound) { return bound == 0 ? 0 : random() % bound; };
    auto const root = wide_element(0);
    auto const document = root->getOwnerDocument();
    auto const map = root->getAttributes();
    std::vector<std::pair<std::string, std::string>> model;
    for (int step = 0; step < 3000; ++step)
    {
      std::size_t const place = below(model.size());
      std::string const value = std::to_string(step);
      switch (model.empty() ? 0 : below(9))
      {
      case 0:
      case 1:
      case 2:
        model.emplace_back("n" + value, value);
        root->setAttribute(wide("n" + value), wide(value));
        break;
      case 3:
        model[place].second = value;
        root->setAttribute(wide(model[place].first), wide(value));
        break;
      case 4:
        root->removeAttribute(wide(model[place].first));
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
        break;
      case 5:
      {
        // A detached attribute takes the place of the one of its name.
        auto const other = document->createElement(APSTRING("o"));
        other->setAttribute(wide(model[place].first), wide(value));
        auto const taken = other->getAttributes()->removeNamedItem(wide(model[place].first));
        ASSERT_EQ(narrow(map->setNamedItem(taken)->getNodeValue()), model[place].second);
        model[place].second = value;
        break;
      }
      case 6:
        ASSERT_EQ(map->getLength(), static_cast<int>(model.size()));
        break;
      default:
        ASSERT_EQ(narrow(map->item(static_cast<int>(place))->getNodeName()), model[place].first) << seed;
        ASSERT_EQ(narrow(root->getAttribute(wide(model[place].first))), model[place].second);
      }
    }
    for (std::size_t i = 0; i < model.size(); ++i)
      ASSERT_EQ(narrow(map->item(static_cast<int>(i))->getNodeValue()), model[i].second) << seed;
    EXPECT_EQ(map->item(static_cast<int>(model.size())), nullptr);
  }
}

TEST(axsGrowth, more_elements_with_many_attributes_than_have_an_index_at_a_time)
{
  std::string xml = "<r>";
  for (int element = 0; element < 150; ++element)
  {
    xml += "<e";
    for (int i = 0; i < 300; ++i)
      xml += " a" + std::to_string(i) + "='" + std::to_string(element) + "'";
    xml += "/>";
  }
  auto const root = load_root(xml + "</r>");
  for (int round = 0; round < 3; ++round)
  {
    int element = 0;
    for (auto at = root->getFirstChild(); at != nullptr; at = at->getNextSibling(), ++element)
    {
      auto const map = at->getAttributes();
      ASSERT_EQ(narrow(map->getNamedItem(APSTRING("a299"))->getNodeValue()), std::to_string(element));
      ASSERT_EQ(narrow(map->item(298)->getNodeName()), "a298");
    }
  }
  // An element with an index goes with it.
  while (root->getFirstChild() != nullptr)
    root->removeChild(root->getFirstChild());
  EXPECT_FALSE(root->hasChildNodes());
}

TEST(axsGrowth, what_positions_are_kept_for_may_go)
{
  // Lists of more elements than are remembered, each element removed and freed afterwards.
  std::string xml = "<r>";
  for (int element = 0; element < 200; ++element)
  {
    xml += "<e>";
    for (int i = 0; i < 40; ++i)
      xml += "<f/>";
    xml += "</e>";
  }
  auto const root = load_root(xml + "</r>");
  for (auto at = root->getFirstChild(); at != nullptr; at = at->getNextSibling())
  {
    ASSERT_EQ(at->getChildNodes()->length(), 40);
    at->appendChild(make(root, "g"));
    ASSERT_EQ(at->getChildNodes()->length(), 41);
  }
  for (int i = 0; root->hasChildNodes(); ++i)
    root->removeChild(i % 2 == 0 ? root->getFirstChild() : root->getLastChild());
  auto const again = make(root, "e");
  root->appendChild(again);
  EXPECT_EQ(again->getChildNodes()->length(), 0);
}
