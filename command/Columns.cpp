#include "Columns.h"

#include <algorithm>

namespace
{
// A name that no element has and a value that no attribute has: a document ends at a NUL.
utString const& nothing()
{
  static utString const text("", 1);
  return text;
}

bool is_nothing(utString const& text)
{
  return text.length() == 1 && *text.c_str() == '\0';
}

// The search for a child begins where the last one ended. One that fails goes back to the first child.
void to_first_child(axmAbstractXmlReader& reader)
{
  reader.down_to(nothing());
}
}

std::vector<std::string> split_path(std::string const& path)
{
  std::vector<std::string> names;
  std::size_t begin = 0;
  for (;;)
  {
    std::size_t const end = std::min(path.find('/', begin), path.size());
    if (end == begin)
      return {};
    names.push_back(path.substr(begin, end - begin));
    if (end == path.size())
      return names;
    begin = end + 1;
  }
}

std::string Columns::complaint(std::vector<std::string> const& columns)
{
  for (auto column = columns.begin(); column != columns.end(); ++column)
  {
    if (std::find(columns.begin(), column, *column) != column)
      return "the column '" + *column + "' is there twice";
    std::vector<std::string> const names = split_path(*column);
    if (names.empty())
      return "the column '" + *column + "' has an empty name in it";
    for (auto name = names.begin(); name != names.end(); ++name)
      if (name->front() == '@' && (name->size() == 1 || name + 1 != names.end()))
        return "the column '" + *column + "' has an '@' that is not in front of the name of an attribute at its end";
  }
  return {};
}

Columns::Columns(std::vector<std::string> const& columns) : count(columns.size())
{
  for (std::size_t column = 0; column < columns.size(); ++column)
  {
    std::vector<std::string> const names = split_path(columns[column]);
    Element* element = &record;
    for (std::string const& name : names)
      if (name.front() == '@')
        element->attributes.push_back({utString(name.c_str() + 1), column});
      else if (name != ".")
        element = &child(*element, name);
    if (names.back().front() != '@')
      element->text_column = column;
  }
}

Columns::Values Columns::read(axmAbstractXmlReader& reader) const
{
  Values values(count);
  read_element(reader, record, values);
  return values;
}

Columns::Element& Columns::child(Element& element, std::string const& name)
{
  for (auto const& known : element.children)
    if (known->name == name)
      return *known;
  element.children.push_back(std::make_unique<Element>());
  element.children.back()->name = name;
  return *element.children.back();
}

// The depth is that of the columns, not that of the document.
void Columns::read_element(axmAbstractXmlReader& reader, Element const& element, Values& values)
{
  for (Element::Attribute const& attribute : element.attributes)
  {
    utString const value = reader.attribute(attribute.name, nothing());
    if (!is_nothing(value))
      values[attribute.column] = value;
  }

  bool at_first_child = true;
  if (element.text_column)
  {
    values[*element.text_column] = reader.text_node();
    at_first_child = false;
  }
  for (auto const& wanted : element.children)
  {
    if (!at_first_child)
      to_first_child(reader);
    at_first_child = !reader.down_to(utString(wanted->name.c_str()));
    if (at_first_child)
      continue;
    read_element(reader, *wanted, values);
    reader.up();
  }
}
