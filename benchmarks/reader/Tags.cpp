#include "Tags.h"

#include <algorithm>
#include <stdexcept>

namespace
{
char const spaces[] = " \t\r\n";

bool begins_with(std::string_view text, std::string_view beginning)
{
  return text.substr(0, beginning.size()) == beginning;
}

std::size_t found(std::size_t place)
{
  if (place == std::string_view::npos)
    throw std::runtime_error("the document is not well-formed");
  return place;
}
}

bool Tags::next(Tag& tag)
{
  tag.attributes.clear();
  if (left.empty())
    return false;
  if (left.front() != '<')
    take(tag, Tag::text, std::min(left.find('<'), left.size()), 0, 0);
  else if (begins_with(left, "<!--"))
    take_until(tag, Tag::comment, "<!--", "-->");
  else if (begins_with(left, "<![CDATA["))
    take_until(tag, Tag::section, "<![CDATA[", "]]>");
  else if (begins_with(left, "<?"))
    take_until(tag, Tag::instruction, "<?", "?>");
  else if (begins_with(left, "<!DOCTYPE"))
    take_document_type(tag);
  else if (begins_with(left, "</"))
  {
    take_until(tag, Tag::closing, "</", ">");
    tag.content = tag.content.substr(0, tag.content.find_first_of(spaces));
  }
  else
    take_tag(tag);
  return true;
}

void Tags::take(Tag& tag, Tag::Kind kind, std::size_t size, std::size_t before, std::size_t behind)
{
  tag.kind = kind;
  tag.whole = left.substr(0, size);
  tag.content = tag.whole.substr(before, size - before - behind);
  left.remove_prefix(size);
}

void Tags::take_until(Tag& tag, Tag::Kind kind, std::string_view mark, std::string_view end)
{
  take(tag, kind, found(left.find(end, mark.size())) + end.size(), mark.size(), end.size());
}

void Tags::take_document_type(Tag& tag)
{
  std::size_t at = 0;
  for (bool in_subset = false; left[at] != '>' || in_subset;)
  {
    at = found(left.find_first_of("<>[]\"'", at + 1));
    if (begins_with(left.substr(at), "<!--"))
      at = found(left.find("-->", at + 4)) + 2;
    else if (left[at] == '"' || left[at] == '\'')
      at = found(left.find(left[at], at + 1));
    else if (left[at] == '[' || left[at] == ']')
      in_subset = left[at] == '[';
  }
  take(tag, Tag::document_type, at + 1, 2, 1);
}

void Tags::take_tag(Tag& tag)
{
  std::size_t at = found(left.find_first_of(" \t\r\n/>", 1));
  std::string_view const name = left.substr(1, at - 1);
  for (;;)
  {
    std::size_t const begin = found(left.find_first_not_of(spaces, at));
    if (left[begin] == '>' || left[begin] == '/')
    {
      bool const closes = left[begin] == '/';
      take(tag, closes ? Tag::self_closing : Tag::opening, begin + 1 + closes, 0, 0);
      tag.content = name;
      return;
    }
    std::size_t const name_end = found(left.find_first_of(" \t\r\n=", begin));
    std::size_t const quote = found(left.find_first_not_of(" \t\r\n=", name_end));
    std::size_t const end = found(left.find(left[quote], quote + 1));
    tag.attributes.push_back({left.substr(at, begin - at), left.substr(begin, name_end - begin), left[quote],
      left.substr(quote + 1, end - quote - 1)});
    at = end + 1;
  }
}
