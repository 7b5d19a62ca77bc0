#include "axsAttributeValue.h"

#include "axsEntities.h"
#include "axsReference.h"

#include <algorithm>

namespace
{
using namespace axsCharacters;

void append(std::string& normal, char const* from, char const* to)
{
  normal.append(from, static_cast<std::size_t>(to - from));
}

bool is_collapsed(std::string_view value)
{
  return value.empty() || (value.front() != ' ' && value.back() != ' ' && value.find("  ") == std::string_view::npos);
}
}

bool axsAttributeValue::read_special(
  char const*& at, std::string& normal, std::string_view& value, axsEntities* entities)
{
  char const quote = *at;
  if (quote != '"' && quote != '\'')
    return false;
  char const* const begin = ++at;
  char const* from = begin;
  std::size_t const before = normal.size();
  while (true)
  {
    at = behind_value(at, quote);
    if (*at == quote)
      break;
    switch (*at)
    {
    case '&':
      append(normal, from, at);
      if (entities == nullptr ? !axsReference::read(at, normal)
                              : !entities->read(at, normal, axsEntities::Place::attribute))
        return false;
      from = at;
      break;
    case '\t':
    case '\n':
    case '\r':
      append(normal, from, at);
      skip_line_end(at);
      normal += ' ';
      from = at;
      break;
    default:
      if (!skip_multibyte(at))
        return false;
    }
  }
  if (from == begin)
    value = {begin, static_cast<std::size_t>(at - begin)};
  else
  {
    append(normal, from, at);
    value = std::string_view(normal).substr(before);
  }
  ++at;
  return true;
}

void axsAttributeValue::collapse(std::string& normal, std::string_view& value)
{
  if (is_collapsed(value))
    return;
  // What stands in `normal` already stands at its end.
  bool const is_normal = value.data() + value.size() == normal.data() + normal.size();
  if (!is_normal)
    normal.append(value);
  std::size_t const begin = normal.size() - value.size();
  auto const first = normal.begin() + static_cast<std::string::difference_type>(begin);
  auto const repeats = [](char left, char right) { return left == ' ' && right == ' '; };
  normal.erase(std::unique(first, normal.end(), repeats), normal.end());
  if (normal.size() > begin && normal.back() == ' ')
    normal.pop_back();
  value = std::string_view(normal).substr(begin);
  if (!value.empty() && value.front() == ' ')
    value.remove_prefix(1);
}
