#include "axsAttributeValue.h"

#include "axsEntities.h"
#include "axsMessages.h"
#include "axsReference.h"

#include <algorithm>

namespace
{
using namespace axsCharacters;

bool is_collapsed(std::string_view value)
{
  return value.empty() || (value.front() != ' ' && value.back() != ' ' && value.find("  ") == std::string_view::npos);
}
}

std::string_view axsAttributeValue::read(char const*& p, std::string_view name)
{
  char const quote = *p;
  if (quote != '"' && quote != '\'')
    in.unexpected(p, axsMessages::attribute_quotes);
  std::size_t const depth = in.depth();
  // Where what is being read has begun, should it be read again.
  char const* const piece = in.at;
  char const* const begin = ++p;
  char const* from = begin;
  std::size_t const before = normal.size();
  while (true)
  {
    p = in.end_of_value(p, quote);
    if (*p == quote && in.depth() == depth)
      break;
    if (*p == '<')
      fail_at_less_than(p, name);
    if (*p == '&' || (in.is_end(p) && in.depth() > depth))
    {
      take(from, p);
      change_input(p);
      if (in.depth() == depth)
        in.at = piece;
      from = p;
      continue;
    }
    if (in.is_end(p))
      in.unexpected(p, "the value of the attribute " + axsMessages::quoted(name) + " is not ended by its quote");
    char const* const special = p;
    if (!pass(p, quote))
      continue;
    take(from, special);
    normal += ' ';
    from = p;
  }
  std::string_view value;
  if (from == begin)
    value = {begin, static_cast<std::size_t>(p - begin)};
  else
  {
    take(from, p);
    value = std::string_view(normal).substr(before);
  }
  in.check_controls(begin, p);
  ++p;
  return value;
}

// Moves after what is no plain character. Whether it becomes a space.
bool axsAttributeValue::pass(char const*& p, char quote)
{
  bool const is_space = is(*p, space);
  if (*p == quote || (is_space && *p != '\r'))
  {
    ++p;
    return is_space;
  }
  return in.pass_special(p) == axsInputStack::Special::line_end || is_space;
}

// Reading goes on after a reference, in the entity or with its text made, and after an entity that has been read.
void axsAttributeValue::change_input(char const*& p)
{
  if (*p == '&')
    return expand(p);
  in.close();
  p = in.at;
}

// A reference (4.4.5).
void axsAttributeValue::expand(char const*& p)
{
  char const* const reference = p;
  if (axsReference::read(in, p, normal))
    return;
  axsEntity& entity = all_entities.general(in, p);
  // WFC: No External Entity References (3.1)
  if (!entity.declared->is_internal)
    in.fail(p, "the entity " + axsMessages::quoted(entity.name) +
                 " is in another file, which the value of an attribute cannot be");
  if (!entity.is_plain)
  {
    in.at = p;
    in.open(entity, reference);
    p = in.at;
    return;
  }
  in.count_expansion(entity, reference);
  std::string const& text = entity.declared->replacement;
  normal += text;
  std::replace_if(
    normal.end() - static_cast<std::string::difference_type>(text.size()), normal.end(),
    [](char c) { return is(c, space); }, ' ');
}

// WFC: No < in Attribute Values (3.1)
void axsAttributeValue::fail_at_less_than(char const* p, std::string_view name) const
{
  if (axsEntity const* const entity = in.is_internal() ? in.entity() : nullptr)
    in.fail(p, "the entity " + axsMessages::quoted(entity->name) +
                 " has a '<', which cannot stand in the value of the attribute " + axsMessages::quoted(name));
  in.fail(p + 1, "the value of the attribute " + axsMessages::quoted(name) +
                   " has a '<', which is written &lt; there, or the quote that ends it is missing");
}

std::string_view axsAttributeValue::collapsed(std::string_view value)
{
  if (is_collapsed(value))
    return value;
  // What was made already stands at the end.
  if (!is_made(value))
    normal.append(value);
  std::size_t const begin = normal.size() - value.size();
  auto const first = normal.begin() + static_cast<std::string::difference_type>(begin);
  auto const repeats = [](char left, char right) { return left == ' ' && right == ' '; };
  normal.erase(std::unique(first, normal.end(), repeats), normal.end());
  if (normal.size() > begin && normal.back() == ' ')
    normal.pop_back();
  std::string_view collapsed = std::string_view(normal).substr(begin);
  if (!collapsed.empty() && collapsed.front() == ' ')
    collapsed.remove_prefix(1);
  return collapsed;
}
