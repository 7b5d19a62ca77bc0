#include "axsTagText.h"

#include <utXmlCharacter.h>

#include <algorithm>

namespace
{
// How many bytes of white space begin there. In a tag, what XML 1.1 makes line feeds of cannot be anything else.
std::size_t space_at(std::string_view text, std::size_t at)
{
  if (utXmlCharacter::is_space(text[at]))
    return 1;
  if (text.compare(at, 2, "\xC2\x85") == 0)
    return 2;
  return text.compare(at, 3, "\xE2\x80\xA8") == 0 ? 3 : 0;
}

std::size_t after_spaces(std::string_view text, std::size_t at)
{
  while (std::size_t const length = space_at(text, at))
    at += length;
  return at;
}

bool ends_name(std::string_view text, std::size_t at)
{
  return text[at] == '=' || text[at] == '/' || text[at] == '>' || space_at(text, at) > 0;
}

axsSpan name_at(std::string_view text, std::size_t at)
{
  axsSpan name{at, at};
  while (!ends_name(text, name.end))
    ++name.end;
  return name;
}
}

axsTagText::axsTagText(std::string_view text, axsSpan span) : all_text(text), tag(span)
{
  name_span = name_at(text, span.begin + (text[span.begin + 1] == '/' ? 2 : 1));
  std::size_t at = name_span.end;
  while (true)
  {
    Attribute read;
    read.whole.begin = at;
    at = after_spaces(text, at);
    empty = text[at] == '/';
    if (empty || text[at] == '>')
      return;
    read.name = name_at(text, at);
    // After '='.
    at = after_spaces(text, after_spaces(text, read.name.end) + 1);
    read.value = {at, text.find(text[at], at + 1) + 1};
    at = read.value.end;
    read.whole.end = at;
    all.push_back(read);
  }
}

axsTagText::Attribute const* axsTagText::find(std::string_view attribute) const noexcept
{
  auto const found = std::find_if(all.begin(), all.end(),
    [&](Attribute const& each) { return all_text.substr(each.name.begin, each.name.size()) == attribute; });
  return found == all.end() ? nullptr : &*found;
}

std::string_view axsTagText::separator() const noexcept
{
  if (all.empty())
    return " ";
  return all_text.substr(all.back().whole.begin, all.back().name.begin - all.back().whole.begin);
}
