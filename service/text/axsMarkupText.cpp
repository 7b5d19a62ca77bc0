#include "axsMarkupText.h"

#include <utUtf8.h>

namespace
{
// XML 1.1 has them as references only (2.2, [2a] RestrictedChar), and makes line feeds of some (2.11).
bool is_restricted(char32_t code)
{
  bool const is_control = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
  return is_control || (code >= 0x7F && code <= 0x9F) || code == 0x2028;
}

bool needs_reference(char32_t code, char quote, bool is_xml_1_1)
{
  if (is_xml_1_1 && is_restricted(code))
    return true;
  return code == '\r' || (quote != '\0' && (code == '\t' || code == '\n'));
}

std::string_view entity_for(char32_t code, char quote)
{
  switch (code)
  {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return quote == '\0' ? "&gt;" : "";
  case '"':
    return quote == '"' ? "&quot;" : "";
  case '\'':
    return quote == '\'' ? "&apos;" : "";
  default:
    return "";
  }
}

// `quote` is none in character data.
std::string escaped(std::string_view text, char quote, bool is_xml_1_1)
{
  std::string made;
  char const* const end = text.data() + text.size();
  for (char const* at = text.data(); at != end;)
  {
    utCodePoint const found = utUtf8::decode(at, end);
    if (std::string_view const entity = entity_for(found.code, quote); !entity.empty())
      made += entity;
    else if (needs_reference(found.code, quote, is_xml_1_1))
      made += "&#" + std::to_string(static_cast<unsigned long>(found.code)) + ";";
    else
      made.append(at, static_cast<std::size_t>(found.length));
    at += found.length;
  }
  return made;
}
}

std::string axsMarkupText::value(std::string_view text, char quote, bool is_xml_1_1)
{
  return quote + escaped(text, quote, is_xml_1_1) + quote;
}

std::string axsMarkupText::content(std::string_view text, bool is_xml_1_1)
{
  return escaped(text, '\0', is_xml_1_1);
}
