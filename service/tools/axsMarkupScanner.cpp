#include "axsMarkupScanner.h"

#include <algorithm>

namespace
{
std::string_view const spaces = " \t\r\n";

bool stands_at(std::string_view text, std::size_t at, std::string_view mark) noexcept
{
  return text.compare(at, mark.size(), mark) == 0;
}
}

bool axsMarkupScanner::next() noexcept
{
  if (position == text.size())
    return false;
  std::size_t end = 0;
  if (text[position] == '<')
    end = end_of_markup();
  else
  {
    found = Kind::text;
    end = std::min(text.find('<', position), text.size());
  }
  current = text.substr(position, end - position);
  position = end;
  return true;
}

std::size_t axsMarkupScanner::end_of_markup() noexcept
{
  if (stands_at(text, position, "<?"))
  {
    bool const is_declaration =
      position == 0 && stands_at(text, 0, "<?xml") && text.find_first_of(spaces, 5) == std::size_t{5};
    found = is_declaration ? Kind::declaration : Kind::instruction;
    return after("?>", position + 2);
  }
  if (stands_at(text, position, "<!--"))
  {
    found = Kind::comment;
    return after("-->", position + 4);
  }
  if (stands_at(text, position, "<![CDATA["))
  {
    found = Kind::cdata;
    return after("]]>", position + 9);
  }
  if (stands_at(text, position, "<!"))
  {
    found = Kind::doctype;
    return after_doctype(position + 2);
  }
  std::size_t const end = after_tag(position + 1);
  if (stands_at(text, position, "</"))
    found = Kind::end_tag;
  else
    found = text[end - 2] == '/' ? Kind::empty_tag : Kind::start_tag;
  return end;
}

std::size_t axsMarkupScanner::after(std::string_view mark, std::size_t from) const noexcept
{
  std::size_t const at = text.find(mark, from);
  return at == std::string_view::npos ? text.size() : at + mark.size();
}

// In the internal subset, the signs of markup may stand in literals, comments and instructions.
std::size_t axsMarkupScanner::after_doctype(std::size_t from) const noexcept
{
  bool is_in_subset = false;
  for (std::size_t at = from; at < text.size();)
  {
    char const c = text[at];
    if (c == '"' || c == '\'')
      at = after(text.substr(at, 1), at + 1);
    else if (stands_at(text, at, "<!--"))
      at = after("-->", at + 4);
    else if (stands_at(text, at, "<?"))
      at = after("?>", at + 2);
    else
    {
      ++at;
      if (c == '[' || c == ']')
        is_in_subset = c == '[';
      else if (c == '>' && !is_in_subset)
        return at;
    }
  }
  return text.size();
}

std::size_t axsMarkupScanner::after_tag(std::size_t from) const noexcept
{
  std::size_t at = text.find_first_of(">\"'", from);
  while (at != std::string_view::npos && text[at] != '>')
    at = text.find_first_of(">\"'", after(text.substr(at, 1), at + 1));
  return at == std::string_view::npos ? text.size() : at + 1;
}

std::string_view axsMarkupScanner::name() const noexcept
{
  std::size_t const begin = found == Kind::end_tag ? 2 : 1;
  return current.substr(begin, current.find_first_of(" \t\r\n/>", begin) - begin);
}

bool axsMarkupScanner::next_attribute(
  std::size_t& at, std::string_view& attribute, std::string_view& value) const noexcept
{
  if (at == 0)
    at = 1 + name().size();
  at = current.find_first_not_of(spaces, at);
  if (at == std::string_view::npos || current[at] == '/' || current[at] == '>')
    return false;
  std::size_t const end = current.find_first_of(" \t\r\n=", at);
  attribute = current.substr(at, end - at);
  std::size_t const quote = current.find_first_of("\"'", end);
  std::size_t const last = current.find(current[quote], quote + 1);
  value = current.substr(quote, last + 1 - quote);
  at = last + 1;
  return true;
}
