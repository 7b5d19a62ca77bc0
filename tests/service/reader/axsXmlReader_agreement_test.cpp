// The simple reader keeps rules of its own. Where they make no difference, both readers give the same answers:
// - the document begins with its XML declaration, has no document type, processing instructions, CDATA sections or
//   entities, and something stands after its root;
// - no name of an element is the beginning of another one's, and none closes itself;
// - in start tags one space stands before each attribute and nothing around '='; no value has a '>' or a reference;
// - texts begin with something other than white space, and are asked for once at a place, where the content of the
//   element begins with one or has none and no children;
// - the walk begins with the root and ends when the root has been left.

#include "Readers.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{
char const* const names[] = {"alpha", "beta", "gamma", "delta"};
char const* const attribute_names[] = {"k", "kind", "x"};

class Maker
{
public:
  explicit Maker(unsigned seed) : random(seed) {}

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

  std::string document()
  {
    text = "<?xml version='1.0' encoding='utf-8'?>\n";
    if (below(3) == 0)
      text += "<!-- first -->\n";
    element(0);
    return text + "\n<!-- last -->\n";
  }

  std::string root;

private:
  void element(int depth)
  {
    std::string const name = names[below(4)];
    if (depth == 0)
      root = name;
    text += '<' + name;
    bool const has_text = below(2) == 0;
    int const children = depth == 4 ? 0 : below(4);
    // Marks the elements whose text is asked for.
    text += has_text || children == 0 ? " x='text'" : "";
    for (char const* const attribute : {"k", "kind"})
      if (below(2) == 0)
        text += ' ' + std::string(attribute) + "='" + std::string(static_cast<std::size_t>(below(5)), 'v') + '\'';
    text += '>';
    if (has_text)
      text += "text of " + name + ' ' + std::to_string(below(100)) + (below(4) == 0 ? "<!--c-->\xC3\xA9" : "");
    for (int i = 0; i < children; ++i)
    {
      text += below(2) == 0 ? "\n" : "";
      text += below(8) == 0 ? "<!-- <alpha> -->" : "";
      element(depth + 1);
    }
    text += "</" + name + '>';
  }

  std::mt19937 random;
  std::string text;
};

// What a walk gave, a line a step.
class Walk
{
public:
  Walk(axmAbstractXmlReader& walked, std::string root_name, unsigned seed)
    : reader(walked),
      root(std::move(root_name)),
      choice(seed)
  {
  }

  std::string run()
  {
    log = reader.read_file() ? "read\n" : "not read\n";
    for (int step = 0; step < 24; ++step)
      if (!go())
        break;
    return log + (reader.has_error_occurred() ? "error\n" : "good\n");
  }

private:
  bool go()
  {
    switch (depth == 0 ? 0 : choice.below(6))
    {
    case 0:
    case 1:
      return down();
    case 2:
      reader.up();
      log += "up\n";
      may_ask_text = false;
      return --depth > 0;
    case 3:
      if (may_ask_text)
        log += "text " + text_of(reader.text_node()) + '\n';
      may_ask_text = false;
      return true;
    default:
      log += "attribute " + text_of(reader.attribute(utString(attribute_names[choice.below(3)]), ut_lit("-"))) + '\n';
      return true;
    }
  }

  bool down()
  {
    std::string const name = depth == 0 ? root : names[choice.below(4)];
    bool const is_down = reader.down_to(utString(name.c_str()));
    log += (is_down ? "down " : "not down ") + name + '\n';
    depth += is_down ? 1 : 0;
    may_ask_text = is_down && text_of(reader.attribute(utString("x"), ut_lit("-"))) == "text";
    return true;
  }

  axmAbstractXmlReader& reader;
  std::string const root;
  Maker choice;
  std::string log;
  int depth = 0;
  bool may_ask_text = false;
};
}

TEST(axsXmlReader, agrees_with_the_simple_reader_where_its_rules_make_no_difference)
{
  for (unsigned document_seed = 0; document_seed < 5000; ++document_seed)
  {
    Maker maker(document_seed);
    std::string const document = maker.document();
    for (unsigned walk_seed = 0; walk_seed < 20; ++walk_seed)
    {
      Reader const simple = reader_of(axmSimpleXmlFactory(), document);
      Reader const exact_one = reader_of(axsXmlFactory(), document);
      unsigned const seed = document_seed * 100 + walk_seed;
      std::string const expected = Walk(*simple, maker.root, seed).run();
      ASSERT_EQ(expected, Walk(*exact_one, maker.root, seed).run()) << document << errors_of(*exact_one);
    }
  }
}
