// Mistakes that are not to compile: the line after each comment gives an error, and what the comment says is said of it.
// See mistakes.cmake.

#include <axm.h>

namespace
{
enum class Colour
{
  red
};

// What is said of one class is said once.
enum class Shape
{
  round
};
}

void make_mistakes(std::shared_ptr<axmElement> const& element)
{
  int const number = 1;
  // a pointer is no value of an attribute: give a text, a number or a bool
  element->set_attribute("a", &number);
  // an enumeration needs the names of its values as a third argument
  axm::attribute<Colour>(element, "a");
  // an enumeration needs the names of its values as a fourth argument
  axm::set_attribute(element, "a", Colour::red);
  // attributes are set to texts, bool and numbers
  axm::set_attribute(*element, "a", &number);
  // a result is asked first, as in if (document), and gives what it holds with *document
  axm::select(axm::load_file("books.xml"), "//a");
  // values are read as bool, numbers, std::string or apString
  axm::attribute<char const*>(element, "a");
  // values are read as bool, numbers, std::string or apString
  axm::select<Shape>(element, "//a");
}
