#include "axsRecordPattern.h"

#include <algorithm>

namespace
{
std::vector<std::string_view> split(std::string_view path)
{
  std::vector<std::string_view> names;
  while (true)
  {
    std::size_t const slash = path.find('/');
    names.push_back(path.substr(0, slash));
    if (slash == std::string_view::npos)
      return names;
    path.remove_prefix(slash + 1);
  }
}

std::string quoted(std::string_view text)
{
  return '\'' + std::string(text) + '\'';
}

bool is_any(std::string_view name)
{
  return name == "*" || (name.size() > 1 && name.substr(name.size() - 2) == ":*");
}

// Why `name` cannot be looked for; empty if it can.
std::string complaint_of_name(std::string_view name, axsRecordPattern::Namespaces const& namespaces)
{
  if (name.empty())
    return "has an empty name in it";
  if (name.find('@') != std::string_view::npos)
    return "has an '@' that does not stand before the name of an attribute at its end";
  std::string_view const prefix = name.substr(0, name.find(':'));
  if (is_any(name) && name != "*" && namespaces.find(std::string(prefix)) == namespaces.end())
    return "has the prefix " + quoted(prefix) + ", for which no namespace is given";
  return {};
}

std::string complaint_of_column(std::string_view column, axsRecordPattern::Namespaces const& namespaces)
{
  if (column == ".")
    return {};
  std::vector<std::string_view> names = split(column);
  if (!names.back().empty() && names.back().front() == '@')
    names.back().remove_prefix(1);
  for (std::string_view const name : names)
  {
    std::string const complaint = name == "."    ? "has a '.' that is not all of it"
                                  : is_any(name) ? "has a '*', which stands in the path only"
                                                 : complaint_of_name(name, namespaces);
    if (!complaint.empty())
      return complaint;
  }
  return {};
}

bool operator==(axsRecordPattern::Name const& left, axsRecordPattern::Name const& right)
{
  return left.text == right.text && left.name_space == right.name_space &&
         left.has_name_space == right.has_name_space && left.is_any == right.is_any;
}
}

std::string axsRecordPattern::complaint(
  std::string_view path, std::vector<std::string> const& columns, Namespaces const& namespaces)
{
  if (path.size() > 1 && path.front() == '/')
    return "the path " + quoted(path) + " begins with '/'; the names from the root to the record stand without one";
  for (std::string_view const name : split(path))
    if (std::string const complaint = complaint_of_name(name, namespaces); !complaint.empty())
      return "the path " + quoted(path) + ' ' + complaint;
  for (auto column = columns.begin(); column != columns.end(); ++column)
  {
    if (std::find(columns.begin(), column, *column) != column)
      return "the column " + quoted(*column) + " is there twice";
    if (std::string const complaint = complaint_of_column(*column, namespaces); !complaint.empty())
      return "the column " + quoted(*column) + ' ' + complaint;
  }
  return {};
}

axsRecordPattern::axsRecordPattern(
  std::string_view path, std::vector<std::string> const& given, Namespaces const& namespaces)
  : all_elements(1)
{
  for (std::string_view const name : split(path))
    steps.push_back(name_of(name, namespaces));
  for (std::string const& column : given)
    add_column(column, columns++, namespaces);
}

void axsRecordPattern::add_column(std::string_view column, std::size_t number, Namespaces const& namespaces)
{
  std::size_t element = 0;
  if (column != ".")
    for (std::string_view const name : split(column))
    {
      if (name.front() == '@')
      {
        all_elements[element].attributes.push_back({name_of(name.substr(1), namespaces), number});
        return;
      }
      element = child(element, name_of(name, namespaces));
    }
  all_elements[element].text_columns.push_back(number);
}

axsRecordPattern::Name axsRecordPattern::name_of(std::string_view text, Namespaces const& namespaces)
{
  Name name{std::string(text), {}, false, text == "*", texts.size()};
  std::size_t const colon = text.find(':');
  if (colon != std::string_view::npos)
    if (auto const given = namespaces.find(std::string(text.substr(0, colon))); given != namespaces.end())
    {
      name.text = text.substr(colon + 1);
      name.name_space = given->second;
      name.has_name_space = true;
      name.is_any = name.text == "*";
    }
  texts.push_back(name.text);
  return name;
}

std::size_t axsRecordPattern::child(std::size_t element, Name const& name)
{
  for (Element::Child const& known : all_elements[element].children)
    if (known.name == name)
      return known.element;
  all_elements.emplace_back();
  all_elements[element].children.push_back({name, all_elements.size() - 1});
  return all_elements.size() - 1;
}
