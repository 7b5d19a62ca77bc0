#include "axsTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
// Records without interfaces: the room for one stays empty.
template <class Record>
class Bare : public Record
{
public:
  template <class... Arguments>
  explicit Bare(Arguments&&... arguments) : Record(std::forward<Arguments>(arguments)...)
  {
  }
};

struct Lead
{
  void* unused = nullptr;
};

class Element final : public Lead, public Bare<axsElement>
{
public:
  explicit Element(axsName const& name) noexcept : Bare(name) {}
};

class Text final : public Lead, public Bare<axsLeaf>
{
public:
  explicit Text(std::uint8_t units) noexcept : Bare(axsKind::text, units) {}
};

class Attribute final : public Lead, public Bare<axsAttribute>
{
public:
  Attribute(std::uint8_t units, axsName const& name) noexcept : Bare(units, name) {}
};

struct Told
{
  int destroyed = 0;
  int leaving = 0;
  std::vector<std::string> changes;
};

class Tree final : public axsTree
{
public:
  explicit Tree(Told& teller) : told(teller) {}
  ~Tree() = default;

  using axsTree::watch_leaving;

  Element& element(char const* name) { return *make_element<Element>(names().intern(name)); }
  Text& text(std::string_view data) { return *make_leaf<Text>(data); }
  Attribute& attribute(char const* name, std::string_view value)
  {
    return *make_leaf<Attribute>(value, names().intern(name));
  }

private:
  void destroy() noexcept override { ++told.destroyed; }
  void nodes_leaving() noexcept override { ++told.leaving; }
  void child_linked(axsParent&, axsNode& child) noexcept override
  {
    told.changes.push_back("+" + std::string(child.node_name()));
  }
  void child_unlinking(axsParent&, axsNode& child) noexcept override
  {
    told.changes.push_back("-" + std::string(child.node_name()));
  }

  void parent_freeing(axsParent& parent) noexcept override
  {
    told.changes.push_back("!" + std::string(parent.node_name()));
  }

  Told& told;
};

class axsTree_ : public testing::Test
{
protected:
  static std::string names_of_children(axsNode const& parent)
  {
    std::string names;
    for (axsNode const* child = parent.first_child(); child != nullptr; child = child->next_sibling())
      names += child->node_name();
    std::string backwards;
    for (axsNode const* child = parent.last_child(); child != nullptr; child = child->previous_sibling())
      backwards.insert(0, child->node_name());
    EXPECT_EQ(names, backwards);
    return names;
  }

  Told told;
  Tree tree{told};
};
}

TEST_F(axsTree_, a_text_has_the_name_of_all_texts_and_its_own_text)
{
  Text& text = tree.text("one");
  EXPECT_EQ(text.node_name(), "#text");
  std::string all = "and ";
  text.append_text_to(all);
  EXPECT_EQ(all, "and one");
}

TEST_F(axsTree_, children_are_linked_in_both_directions_wherever_they_come_and_go)
{
  Element& parent = tree.element("p");
  parent.acquire();
  Element* const children[] = {&tree.element("a"), &tree.element("b"), &tree.element("c"), &tree.element("d")};
  for (Element* const child : children)
    child->acquire();
  parent.insert(*children[1], nullptr);
  parent.insert(*children[0], children[1]);
  parent.insert(*children[3], nullptr);
  parent.insert(*children[2], children[3]);
  EXPECT_EQ(names_of_children(parent), "abcd");
  parent.insert(*children[3], children[0]);
  EXPECT_EQ(names_of_children(parent), "dabc");
  parent.remove(*children[0]);
  EXPECT_EQ(names_of_children(parent), "dbc");
  parent.remove(*children[2]);
  EXPECT_EQ(names_of_children(parent), "db");
  parent.remove(*children[3]);
  parent.remove(*children[1]);
  EXPECT_EQ(names_of_children(parent), "");
  EXPECT_EQ(parent.last_child(), nullptr);
}

TEST_F(axsTree_, a_document_that_nobody_holds_is_destroyed_by_what_is_above)
{
  Element& root = tree.element("root");
  tree.append_new(root);
  root.acquire();
  EXPECT_TRUE(tree.is_held());
  EXPECT_EQ(told.destroyed, 0);
  root.release();
  EXPECT_FALSE(tree.is_held());
  EXPECT_EQ(told.destroyed, 1);
}

TEST_F(axsTree_, a_detached_tree_goes_with_its_last_holder_and_its_memory_is_used_again)
{
  tree.acquire();
  Element& top = tree.element("top");
  Text& below = tree.text("text");
  top.append_new(below);
  below.acquire();
  below.release();
  Element& next = tree.element("other");
  EXPECT_EQ(static_cast<void*>(&next), static_cast<void*>(&top));
  tree.release();
}

TEST_F(axsTree_, a_tree_of_a_hundred_thousand_levels_is_freed_without_recursion)
{
  tree.acquire();
  Element* top = &tree.element("top");
  top->acquire();
  Element* at = top;
  for (int i = 0; i < 100000; ++i)
  {
    Element& child = tree.element("e");
    at->append_new(child);
    at->append_new(tree.text("t"));
    at = &child;
  }
  std::size_t const footprint = tree.arena().footprint();
  top->release();
  for (int i = 0; i < 100000; ++i)
    tree.element("e");
  EXPECT_LE(tree.arena().footprint(), footprint);
  tree.release();
}

TEST_F(axsTree_, what_is_above_is_told_of_children_of_watched_parents_only)
{
  Element& watched = tree.element("w");
  Element& other = tree.element("o");
  watched.acquire();
  other.acquire();
  watched.set_watched(true);
  Element& child = tree.element("c");
  child.acquire();
  watched.insert(child, nullptr);
  other.insert(child, nullptr);
  other.remove(child);
  EXPECT_EQ(told.changes, (std::vector<std::string>{"+c", "-c"}));
}

TEST_F(axsTree_, what_is_above_is_told_before_nodes_leave_as_long_as_it_asks_for_that)
{
  Element& parent = tree.element("p");
  parent.acquire();
  parent.append_new(tree.element("a"));
  parent.append_new(tree.element("b"));
  parent.append_new(tree.element("c"));
  parent.remove(*parent.first_child());
  EXPECT_EQ(told.leaving, 0);
  tree.watch_leaving(true);
  parent.remove(*parent.first_child());
  EXPECT_EQ(told.leaving, 1);
  tree.watch_leaving(false);
  parent.remove(*parent.first_child());
  EXPECT_EQ(told.leaving, 1);
}

TEST_F(axsTree_, a_text_of_any_length_takes_the_place_of_any_other)
{
  Text& text = tree.text("");
  std::size_t const lengths[] = {0, 1, 8, 9, 1000, 5000, 100000, 3, 70000, 0, 65535, 65534};
  for (std::size_t const length : lengths)
  {
    std::string const wanted(length, 'x');
    text.set_text(wanted);
    EXPECT_EQ(text.text(), wanted);
  }
  text.set_text(std::string(5000, 'y'));
  text.set_text(text.text().substr(1000, 4));
  EXPECT_EQ(text.text(), "yyyy");
}

TEST_F(axsTree_, a_node_is_made_with_a_text_of_any_length)
{
  std::string text;
  for (int i = 0; i < 1100; ++i)
  {
    EXPECT_EQ(tree.text(text).text(), text);
    text += static_cast<char>('a' + i % 26);
  }
}

TEST_F(axsTree_, an_attribute_takes_the_place_of_the_one_it_replaces)
{
  Element& element = tree.element("e");
  element.acquire();
  Attribute& a = tree.attribute("a", "1");
  Attribute& b = tree.attribute("b", "2");
  Attribute& c = tree.attribute("c", "3");
  element.append_new_attribute(a, nullptr);
  element.append_new_attribute(b, &a);
  element.append_new_attribute(c, &b);
  std::uint64_t const changes = tree.attribute_changes();
  Attribute& other = tree.attribute("d", "4");
  other.acquire();
  b.acquire();
  element.put_attribute(other, &b);
  EXPECT_NE(tree.attribute_changes(), changes);
  EXPECT_EQ(element.first_attribute()->next_attribute(), &other);
  EXPECT_EQ(other.next_attribute(), &c);
  EXPECT_EQ(b.owner(), nullptr);
  EXPECT_EQ(element.find_attribute(std::string_view("b")), nullptr);
  EXPECT_EQ(element.find_attribute(std::wstring_view(L"d")), &other);
  EXPECT_EQ(element.find_attribute(other.full_name()), &other);
}

TEST_F(axsTree_, an_element_knows_its_name_beyond_the_names_that_have_a_number)
{
  for (int i = 0; i < 70000; ++i)
    tree.names().intern("n" + std::to_string(i));
  Element& numbered = tree.element("n5");
  Element& other = tree.element("n69999");
  EXPECT_EQ(numbered.element_name().utf8(), "n5");
  EXPECT_EQ(other.element_name().utf8(), "n69999");
  EXPECT_TRUE(other.is_named(other.element_name()));
  EXPECT_FALSE(other.is_named(tree.names().intern("n69998")));
  EXPECT_GT(other.size(), numbered.size());
}

TEST_F(axsTree_, the_records_are_as_small_as_their_parts)
{
#ifndef _MSC_VER
  EXPECT_EQ(sizeof(axsLeaf), 4 * sizeof(void*));
  EXPECT_EQ(sizeof(axsElement), 6 * sizeof(void*));
#endif
}
