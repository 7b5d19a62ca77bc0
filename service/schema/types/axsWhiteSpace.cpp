#include "axsWhiteSpace.h"

#include <utXmlCharacter.h>

#include <algorithm>
#include <cstddef>

using utXmlCharacter::is_space;

namespace
{
// Whether nothing is to be done with a text that neither begins nor ends with white space.
bool is_collapsed(std::string_view text) noexcept
{
  bool after_space = false;
  for (char const c : text)
  {
    bool const space = is_space(c);
    if (space && (c != ' ' || after_space))
      return false;
    after_space = space;
  }
  return true;
}

void collapse(std::string_view list, std::string& into)
{
  into.clear();
  into.reserve(list.size());
  std::string_view item;
  while (axsWhiteSpaces::next_item(list, item))
  {
    if (!into.empty())
      into += ' ';
    into += item;
  }
}
}

std::string_view axsWhiteSpaces::name(axsWhiteSpace kind) noexcept
{
  switch (kind)
  {
  case axsWhiteSpace::replace:
    return "replace";
  case axsWhiteSpace::collapse:
    return "collapse";
  default:
    return "preserve";
  }
}

std::string_view axsWhiteSpaces::normalised(std::string_view text, axsWhiteSpace kind, std::string& buffer)
{
  if (kind == axsWhiteSpace::preserve)
    return text;
  if (kind == axsWhiteSpace::collapse)
  {
    std::string_view const inner = trimmed(text);
    if (is_collapsed(inner))
      return inner;
    collapse(inner, buffer);
    return buffer;
  }
  if (text.find_first_of("\t\n\r") == std::string_view::npos)
    return text;
  buffer.assign(text);
  std::replace_if(
    buffer.begin(), buffer.end(), [](char c) { return is_space(c); }, ' ');
  return buffer;
}

std::string_view axsWhiteSpaces::trimmed(std::string_view text) noexcept
{
  while (!text.empty() && is_space(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && is_space(text.back()))
    text.remove_suffix(1);
  return text;
}

bool axsWhiteSpaces::next_item(std::string_view& list, std::string_view& item) noexcept
{
  std::size_t begin = 0;
  while (begin < list.size() && is_space(list[begin]))
    ++begin;
  std::size_t end = begin;
  while (end < list.size() && !is_space(list[end]))
    ++end;
  item = list.substr(begin, end - begin);
  list.remove_prefix(end);
  return !item.empty();
}
