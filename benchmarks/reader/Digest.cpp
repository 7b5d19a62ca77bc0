#include "Task.h"

#include <cstdlib>

namespace
{
void append_utf8(std::string& text, unsigned long c)
{
  if (c < 0x80)
    text += static_cast<char>(c);
  else if (c < 0x800)
  {
    text += static_cast<char>(0xC0 | (c >> 6));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
  else if (c < 0x10000)
  {
    text += static_cast<char>(0xE0 | (c >> 12));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
  else
  {
    text += static_cast<char>(0xF0 | (c >> 18));
    text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Replaces entities and leaves out white space.
std::string normalised(std::string_view value)
{
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i)
  {
    char const c = value[i];
    if (c == ' ' || c == '\t' || c == '\n' || c == '\r')
      continue;
    std::size_t const end = c == '&' ? value.find(';', i) : std::string_view::npos;
    if (end == std::string_view::npos)
    {
      text += c;
      continue;
    }
    std::string const entity(value.substr(i + 1, end - i - 1));
    if (entity == "lt")
      text += '<';
    else if (entity == "gt")
      text += '>';
    else if (entity == "amp")
      text += '&';
    else if (entity == "quot")
      text += '"';
    else if (entity == "apos")
      text += '\'';
    else if (entity.size() > 1 && entity[0] == '#')
      append_utf8(text, entity[1] == 'x' ? std::strtoul(entity.c_str() + 2, nullptr, 16)
                                         : std::strtoul(entity.c_str() + 1, nullptr, 10));
    else
      text += '&' + entity + ';';
    i = end;
  }
  // What entities stood for may be white space too.
  std::string packed;
  for (char const c : text)
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
      packed += c;
  return packed;
}
}

void Digest::add_whole(std::string_view value)
{
  for (char const c : normalised(value))
    normal = (normal ^ static_cast<unsigned char>(c)) * 1099511628211u;
  normal = (normal ^ 0xFFu) * 1099511628211u;
}
