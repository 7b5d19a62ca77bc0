#include "axmModelText.h"

#include <apString.h>

#include <algorithm>
#include <cstdio>

namespace
{
struct Range
{
  char32_t first;
  char32_t last;
};

Range const name_starts[] = {{U':', U':'}, {U'A', U'Z'}, {U'_', U'_'}, {U'a', U'z'}, {0xC0, 0xD6}, {0xD8, 0xF6},
  {0xF8, 0x2FF}, {0x370, 0x37D}, {0x37F, 0x1FFF}, {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
  {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

Range const name_rest[] = {{U'-', U'-'}, {U'.', U'.'}, {U'0', U'9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <class Ranges>
bool is_in(Ranges const& ranges, char32_t character)
{
  return std::any_of(std::begin(ranges), std::end(ranges),
    [character](Range const& range) { return range.first <= character && character <= range.last; });
}

bool is_storable_character(char32_t c)
{
  if (c < 0x20)
    return c == U'\t' || c == U'\n' || c == U'\r';
  return c <= 0xD7FF || (0xE000 <= c && c <= 0xFFFD) || (0x10000 <= c && c <= 0x10FFFF);
}

bool is_high_half(wchar_t c)
{
  return sizeof(wchar_t) == 2 && 0xD800 <= c && c <= 0xDBFF;
}
}

char32_t axmModelText::next_character(std::wstring_view text, std::size_t& at)
{
  wchar_t const first = text[at++];
  if (!is_high_half(first) || at == text.size() || text[at] < 0xDC00 || text[at] > 0xDFFF)
    return static_cast<char32_t>(first);
  auto const high = static_cast<char32_t>(first) - 0xD800;
  auto const low = static_cast<char32_t>(text[at++]) - 0xDC00;
  return 0x10000 + (high << 10U) + low;
}

bool axmModelText::is_storable(std::wstring_view text)
{
  for (std::size_t at = 0; at < text.size();)
    if (!is_storable_character(next_character(text, at)))
      return false;
  return true;
}

bool axmModelText::is_name(std::wstring_view text)
{
  if (text.empty())
    return false;
  std::size_t at = 0;
  if (!is_in(name_starts, next_character(text, at)))
    return false;
  while (at < text.size())
  {
    char32_t const character = next_character(text, at);
    if (!is_in(name_starts, character) && !is_in(name_rest, character))
      return false;
  }
  return true;
}

bool axmModelText::is_white(std::wstring_view text)
{
  return text.find_first_not_of(L" \t\r\n") == std::wstring_view::npos;
}

std::string axmModelText::quoted(std::wstring_view text)
{
  constexpr std::size_t longest = 200;
  if (text.size() > longest)
  {
    char rest[80];
    std::snprintf(rest, sizeof rest, " /* and so on, %zu characters in all */", text.size());
    return quoted(text.substr(0, longest)) + rest;
  }
  std::string result = "L\"";
  for (std::size_t at = 0; at < text.size();)
  {
    char32_t const c = next_character(text, at);
    char escape[24];
    if (c == U'"' || c == U'\\')
      std::snprintf(escape, sizeof escape, "\\%c", static_cast<char>(c));
    else if (0x20 <= c && c < 0x7F)
      std::snprintf(escape, sizeof escape, "%c", static_cast<char>(c));
    else if (c < 0xA0)
      std::snprintf(escape, sizeof escape, "\\%03o", static_cast<unsigned>(c));
    else
      std::snprintf(escape, sizeof escape, c > 0xFFFF ? "\\U%08X" : "\\u%04X", static_cast<unsigned>(c));
    result += escape;
  }
  return result + '"';
}
