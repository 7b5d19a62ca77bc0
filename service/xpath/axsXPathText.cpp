#include "axsXPathText.h"

#include "axsCharacters.h"
#include "axsXPathNumber.h"

#include <utUtf8.h>
#include <utXmlCharacter.h>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <vector>

namespace
{
// The characters at the positions first <= p < past; none where one of the two is NaN.
std::string_view between(std::string_view text, double first, double past) noexcept
{
  double position = 1;
  std::size_t begin = 0;
  for (; begin < text.size() && !(position >= first); ++position)
    begin += utUtf8::length_from_first(text[begin]);
  std::size_t end = begin;
  for (; end < text.size() && position < past; ++position)
    end += utUtf8::length_from_first(text[end]);
  return text.substr(begin, end - begin);
}

// Up to this length, what is looked at twice is not worth a table.
std::size_t const short_length = 32;

// For each beginning of `text`, the length of the longest shorter beginning that it ends with.
std::vector<std::size_t> borders_of(std::string_view text)
{
  std::vector<std::size_t> borders(text.size() + 1);
  std::size_t border = 0;
  for (std::size_t i = 1; i < text.size(); ++i)
  {
    while (border > 0 && text[border] != text[i])
      border = borders[border];
    border += text[border] == text[i] ? 1 : 0;
    borders[i + 1] = border;
  }
  return borders;
}
}

char32_t axsXPathText::next_character(std::string_view text, std::size_t& at) noexcept
{
  utCodePoint const found = utUtf8::decode(text.data() + at, text.data() + text.size());
  at += found.length;
  return found.code;
}

std::string_view axsXPathText::trim(std::string_view text) noexcept
{
  while (!text.empty() && utXmlCharacter::is_space(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && utXmlCharacter::is_space(text.back()))
    text.remove_suffix(1);
  return text;
}

std::string axsXPathText::normalize_space(std::string_view text)
{
  std::string result;
  text = trim(text);
  result.reserve(text.size());
  for (char const c : text)
  {
    if (!utXmlCharacter::is_space(c))
      result.push_back(c);
    else if (result.back() != ' ')
      result.push_back(' ');
  }
  return result;
}

std::string_view axsXPathText::substring(std::string_view text, double start) noexcept
{
  return between(text, axsXPathNumber::round(start), std::numeric_limits<double>::infinity());
}

std::string_view axsXPathText::substring(std::string_view text, double start, double length) noexcept
{
  double const first = axsXPathNumber::round(start);
  return between(text, first, first + axsXPathNumber::round(length));
}

// By Knuth, Morris and Pratt: no character of the text is looked at again.
std::size_t axsXPathText::find(std::string_view text, std::string_view wanted)
{
  if (wanted.size() <= short_length || wanted.size() > text.size())
    return text.find(wanted);
  std::vector<std::size_t> const borders = borders_of(wanted);
  std::size_t matched = 0;
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    if (matched == 0)
    {
      at = text.find(wanted.front(), at);
      if (at == std::string_view::npos)
        return at;
    }
    while (matched > 0 && wanted[matched] != text[at])
      matched = borders[matched];
    matched += wanted[matched] == text[at] ? 1 : 0;
    if (matched == wanted.size())
      return at + 1 - matched;
  }
  return std::string_view::npos;
}

std::string axsXPathText::translate(std::string_view text, std::string_view from, std::string_view to)
{
  std::unordered_map<char32_t, std::string_view> replacements;
  std::size_t to_at = 0;
  for (std::size_t at = 0; at < from.size();)
  {
    std::string_view replacement;
    if (to_at < to.size())
    {
      replacement = to.substr(to_at, utUtf8::length_from_first(to[to_at]));
      to_at += replacement.size();
    }
    replacements.emplace(next_character(from, at), replacement);
  }

  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();)
  {
    std::size_t const begin = at;
    auto const found = replacements.find(next_character(text, at));
    result.append(found == replacements.end() ? text.substr(begin, at - begin) : found->second);
  }
  return result;
}

bool axsXPathText::is_name_start(char32_t c) noexcept
{
  return c != ':' && axsCharacters::is_name_start(c);
}

bool axsXPathText::is_name_character(char32_t c) noexcept
{
  return c != ':' && axsCharacters::is_name_part(c);
}
