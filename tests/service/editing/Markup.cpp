#include "Markup.h"

#include <utUtf16.h>
#include <utUtf8.h>

namespace
{
std::size_t after(std::string_view document, char const* what, std::size_t at)
{
  return document.find(what, at) + std::string_view(what).size();
}

// After the tag that begins there: a value may hold what ends it.
std::size_t after_tag(std::string_view document, std::size_t at)
{
  char quote = '\0';
  for (;; ++at)
    if (quote != '\0')
      quote = document[at] == quote ? '\0' : quote;
    else if (document[at] == '"' || document[at] == '\'')
      quote = document[at];
    else if (document[at] == '>')
      return at + 1;
}

// After the document type declaration, in which declarations, comments and instructions may lie.
std::size_t after_doctype(std::string_view document, std::size_t at)
{
  int depth = 0;
  for (at += 9;; ++at)
  {
    std::string_view const rest = document.substr(at);
    if (rest.substr(0, 4) == "<!--")
      at = after(document, "-->", at) - 1;
    else if (rest.substr(0, 2) == "<?")
      at = after(document, "?>", at) - 1;
    else if (rest.substr(0, 2) == "<!")
      at = after_tag(document, at) - 1;
    else if (rest[0] == '"' || rest[0] == '\'')
      at = document.find(rest[0], at + 1);
    else if (rest[0] == '[' || rest[0] == ']')
      depth += rest[0] == '[' ? 1 : -1;
    else if (rest[0] == '>' && depth == 0)
      return at + 1;
  }
}

template <class Append>
void for_each_character(std::string_view utf8, Append append)
{
  for (std::size_t at = 0; at < utf8.size();)
  {
    utCodePoint const found = utUtf8::decode(utf8.data() + at, utf8.data() + utf8.size());
    append(found.code);
    at += static_cast<std::size_t>(found.length);
  }
}
}

std::vector<Markup::Element> Markup::elements(std::string_view document)
{
  std::vector<Element> all;
  std::vector<std::size_t> open;
  for (std::size_t at = document.find('<'); at != document.npos; at = document.find('<', at))
  {
    std::size_t const begin = at;
    if (document.substr(at, 4) == "<!--")
      at = after(document, "-->", at + 4);
    else if (document.substr(at, 9) == "<![CDATA[")
      at = after(document, "]]>", at);
    else if (document.substr(at, 2) == "<?")
      at = after(document, "?>", at);
    else if (document.substr(at, 9) == "<!DOCTYPE")
      at = after_doctype(document, at);
    else if (document[at + 1] == '/')
    {
      at = after_tag(document, at);
      all[open.back()].end = {begin, at};
      open.pop_back();
    }
    else
    {
      at = after_tag(document, at);
      all.push_back({{begin, at}, {begin, at}});
      if (document[at - 2] != '/')
        open.push_back(all.size() - 1);
    }
  }
  return all;
}

std::string Markup::encoded(std::string_view utf8, Units units)
{
  std::string made;
  int const size = units == utf_16_le || units == utf_16_be ? 2 : 4;
  bool const is_big = units == utf_16_be || units == utf_32_be;
  auto const append = [&](char32_t unit)
  {
    for (int i = 0; i < size; ++i)
      made += static_cast<char>(unit >> 8 * (is_big ? size - 1 - i : i) & 0xFF);
  };
  for_each_character(utf8,
    [&](char32_t code)
    {
      if (size == 4)
        return append(code);
      char16_t pair[2];
      char16_t const* const end = utUtf16::encode(code, pair);
      for (char16_t const* unit = pair; unit != end; ++unit)
        append(*unit);
    });
  return made;
}

std::string Markup::latin_1(std::string_view utf8)
{
  std::string made;
  for_each_character(utf8, [&](char32_t code) { made += static_cast<char>(code); });
  return made;
}
