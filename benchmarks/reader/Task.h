#pragma once

#include <string>
#include <string_view>
#include <vector>

// What is taken out of each element of one path: attributes, the text, and what its children hold.
struct Element
{
  std::string name;
  int field = 0; // the number of the first attribute; each attribute is a field, and the text is the one after them
  std::vector<std::string> attributes;
  bool has_text = false;
  bool is_single = false; // no parent has two of them, and all parents have their children in the order given here
  std::vector<Element> children;

  int text_field() const { return field + static_cast<int>(attributes.size()); }
};

struct Task
{
  Element root;
  int fields = 0;
};

// Where `name` stands among `names`, which most often is at `expected`; the number of names if it is not there. What a
// program that meets names one after the other does at best.
template <class Names, class Equals>
std::size_t position_of(Names const& names, std::size_t expected, Equals const& equals)
{
  std::size_t const count = names.size();
  for (std::size_t i = expected; i < count; ++i)
    if (equals(names[i]))
      return i;
  if (expected > count)
    expected = count;
  for (std::size_t i = 0; i < expected; ++i)
    if (equals(names[i]))
      return i;
  return count;
}
