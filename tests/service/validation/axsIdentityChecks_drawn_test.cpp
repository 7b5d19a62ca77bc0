// Drawn documents against keys and references of which each combination of paths comes up, judged by what Part 1, 3.11.4 and
// 3.11.5 say, done plainly.

#include "Schema.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <optional>
#include <random>
#include <utility>

namespace
{
struct Node
{
  char name = 'a';
  int key = 0;       // 0 for none
  int reference = 0; // the same
  std::vector<Node> children;
};

// The steps of an alternative, "." for itself.
struct Alternative
{
  bool from_descendants;
  std::string steps;
};

using Path = std::vector<Alternative>;

std::vector<Path> const paths = {{{false, "."}}, {{false, "a"}}, {{false, "*"}}, {{false, "b*"}}, {{true, "a"}},
  {{true, "*"}}, {{true, "."}}, {{true, "ab"}}, {{true, "a"}, {true, "bc"}}, {{true, "*"}, {true, "."}},
  {{true, "b"}, {false, "a"}}, {{true, "ab"}, {false, "."}, {false, "*b"}}, {{true, "b"}, {true, "a*"}},
  {{false, "a"}, {true, "b"}}, {{true, "c"}, {false, "*"}}, {{true, "aa"}, {false, "."}, {false, "b"}}};

std::string xpath_of(Path const& path)
{
  std::string text;
  for (Alternative const& alternative : path)
  {
    text += (text.empty() ? "" : "|") + std::string(alternative.from_descendants ? ".//" : "");
    for (std::size_t i = 0; i < alternative.steps.size(); ++i)
      text += (i == 0 ? "" : "/") + std::string(1, alternative.steps[i]);
  }
  return text;
}

struct Constraints
{
  char key_on;
  char reference_on;
  Path keys;
  Path references;
  bool is_field_deep; // of the keys
};

std::string declaration(char name, Constraints const& constraints)
{
  std::string text = "<xs:element name='" + std::string(1, name) +
                     "'><xs:complexType><xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element ref='a'/>"
                     "<xs:element ref='b'/><xs:element ref='c'/></xs:choice><xs:attribute name='k' type='xs:int'/>"
                     "<xs:attribute name='t' type='xs:int'/></xs:complexType>";
  if (name == constraints.reference_on)
    text += "<xs:keyref name='f' refer='u'><xs:selector xpath='" + xpath_of(constraints.references) +
            "'/><xs:field xpath='@t'/></xs:keyref>";
  if (name == constraints.key_on)
    text += "<xs:unique name='u'><xs:selector xpath='" + xpath_of(constraints.keys) + "'/><xs:field xpath='" +
            (constraints.is_field_deep ? ".//@k" : "@k") + "'/></xs:unique>";
  return text + "</xs:element>";
}

std::string schema_of(Constraints const& constraints)
{
  return declaration('a', constraints) + declaration('b', constraints) + declaration('c', constraints);
}

class Judge
{
public:
  explicit Judge(Constraints const& given) : constraints(given) {}

  bool is_valid(Node const& root)
  {
    table_of(root);
    return valid;
  }

private:
  using Table = std::map<int, Node const*>;
  using Line = std::vector<Node const*>;

  static bool leads(Alternative const& alternative, Line const& line)
  {
    std::size_t const count = alternative.steps == "." ? 0 : alternative.steps.size();
    std::size_t const below = line.size() - 1;
    if (alternative.from_descendants ? below < count : below != count)
      return false;
    for (std::size_t i = 0; i < count; ++i)
      if (char const step = alternative.steps[i]; step != '*' && step != line[line.size() - count + i]->name)
        return false;
    return true;
  }

  static void select(Path const& path, Line& line, std::vector<Node const*>& selected)
  {
    for (Alternative const& alternative : path)
      if (leads(alternative, line))
      {
        selected.push_back(line.back());
        break;
      }
    for (Node const& child : line.back()->children)
    {
      line.push_back(&child);
      select(path, line, selected);
      line.pop_back();
    }
  }

  static std::vector<Node const*> selected_in(Node const& scope, Path const& path)
  {
    Line line{&scope};
    std::vector<Node const*> selected;
    select(path, line, selected);
    return selected;
  }

  int value_of(Node const& key)
  {
    int value = key.key;
    if (constraints.is_field_deep)
      for (Node const& child : key.children)
        if (int const found = value_of(child); found != 0)
        {
          valid = valid && value == 0;
          value = found;
        }
    return value;
  }

  Table table_of(Node const& node)
  {
    Table table;
    if (node.name == constraints.key_on)
      for (Node const* const key : selected_in(node, constraints.keys))
        if (int const value = value_of(*key); value != 0)
          valid = table.emplace(value, key).second && valid;
    std::map<int, std::vector<Node const*>> inherited;
    for (Node const& child : node.children)
      for (auto const& [value, key] : table_of(child))
        inherited[value].push_back(key);
    for (auto const& [value, keys] : inherited)
      if (keys.size() == 1)
        table.emplace(value, keys.front());
    if (node.name == constraints.reference_on)
      for (Node const* const reference : selected_in(node, constraints.references))
        valid = valid && (reference->reference == 0 || table.count(reference->reference) != 0);
    return table;
  }

  Constraints const& constraints;
  bool valid = true;
};

class Draw
{
public:
  std::size_t below(std::size_t bound) { return random() % bound; }

  // Keys are mostly different, and references are few, so that about as many documents are valid as not.
  Node document()
  {
    keys = 0;
    left = below(2) == 0 ? 16 : 30;
    repeated = below(2) == 0 ? 12 : 5;
    return node(2 + below(7));
  }

private:
  Node node(std::size_t levels)
  {
    Node made;
    made.name = "aaabbc"[below(6)];
    made.key = below(4) == 0 ? 0 : below(repeated) == 0 ? one_of_the_keys() : ++keys;
    made.reference = below(6) == 0 ? one_of_the_keys() : 0;
    for (std::size_t i = levels > 0 ? 1 + below(3) : 0; i > 0 && left > 0; --i)
    {
      --left;
      made.children.push_back(node(levels - 1));
    }
    return made;
  }

  int one_of_the_keys() { return static_cast<int>(1 + below(static_cast<std::size_t>(keys) + 1)); }

  std::mt19937 random{20261122};
  int keys = 0;
  int left = 0;
  std::size_t repeated = 0;
};

std::string text_of(Node const& node)
{
  std::string text = "<" + std::string(1, node.name);
  if (node.key != 0)
    text += " k='" + std::to_string(node.key) + "'";
  if (node.reference != 0)
    text += " t='" + std::to_string(node.reference) + "'";
  text += ">";
  for (Node const& child : node.children)
    text += text_of(child);
  return text + "</" + node.name + ">";
}
}

TEST(axsIdentityChecks, drawn_keys_and_references_are_judged_as_the_recommendation_says)
{
  Draw draw;
  std::array<int, 2> verdicts{};
  for (int i = 0; i < 1000; ++i)
  {
    Constraints const constraints{"ab"[draw.below(2)], "abc"[draw.below(3)], paths[draw.below(paths.size())],
      paths[draw.below(paths.size())], draw.below(4) == 0};
    Schema const schema(schema_of(constraints));
    ASSERT_EQ(schema.fault(), "");
    for (int j = 0; j < 40; ++j)
    {
      Node const root = draw.document();
      bool const expected = Judge(constraints).is_valid(root);
      ++verdicts[expected ? 1 : 0];
      ASSERT_EQ(schema.wrong(text_of(root)).empty(), expected) << schema_of(constraints) << "\n"
                                                               << text_of(root) << "\n"
                                                               << schema.wrong(text_of(root));
    }
  }
  EXPECT_GT(verdicts[0], 5000);
  EXPECT_GT(verdicts[1], 5000);
}
