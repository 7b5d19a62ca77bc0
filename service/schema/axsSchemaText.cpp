#include "axsSchemaText.h"

#include "axsCharacters.h"

#include <algorithm>
#include <limits>

namespace
{
std::size_t const longest_quote = 100;

// The character that begins at `at`, which moves to the next one. The text is UTF-8 already.
char32_t next_character(std::string_view text, std::size_t& at) noexcept
{
  auto const byte = static_cast<unsigned char>(text[at++]);
  if (byte < 0x80)
    return byte;
  char32_t code = byte >= 0xF0 ? byte & 0x07u : byte >= 0xE0 ? byte & 0x0Fu : byte & 0x1Fu;
  for (; at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; ++at)
    code = code << 6 | (static_cast<unsigned char>(text[at]) & 0x3Fu);
  return code;
}
}

bool axsSchemaText::is_ncname(std::string_view text) noexcept
{
  for (std::size_t at = 0; at < text.size();)
  {
    bool const is_first = at == 0;
    char32_t const code = next_character(text, at);
    if (code == ':' || !(is_first ? axsCharacters::is_name_start(code) : axsCharacters::is_name_part(code)))
      return false;
  }
  return !text.empty();
}

bool axsSchemaText::is_boolean(std::string_view text) noexcept
{
  return text == "true" || text == "false" || text == "1" || text == "0";
}

bool axsSchemaText::is_qname(std::string_view text) noexcept
{
  std::size_t const colon = text.find(':');
  if (colon == std::string_view::npos)
    return is_ncname(text);
  return is_ncname(text.substr(0, colon)) && is_ncname(text.substr(colon + 1));
}

std::optional<std::uint64_t> axsSchemaText::count(std::string_view text) noexcept
{
  constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max() - 1;
  bool const is_negative = !text.empty() && text[0] == '-';
  if (!text.empty() && (text[0] == '+' || text[0] == '-'))
    text.remove_prefix(1);
  if (text.empty())
    return std::nullopt;
  std::uint64_t value = 0;
  for (char const c : text)
  {
    if (c < '0' || c > '9')
      return std::nullopt;
    auto const digit = static_cast<std::uint64_t>(c - '0');
    value = value > (largest - digit) / 10 ? largest : value * 10 + digit;
  }
  return is_negative && value != 0 ? std::nullopt : std::optional(value);
}

std::string_view axsSchemaText::trimmed(std::string_view text) noexcept
{
  constexpr std::string_view white = " \t\n\r";
  std::size_t const begin = std::min(text.find_first_not_of(white), text.size());
  std::size_t const end = text.find_last_not_of(white);
  return end == std::string_view::npos ? std::string_view() : text.substr(begin, end + 1 - begin);
}

std::string_view axsSchemaText::next_item(std::string_view& list) noexcept
{
  std::size_t const begin = std::min(list.find_first_not_of(' '), list.size());
  std::size_t const end = std::min(list.find(' ', begin), list.size());
  std::string_view const item = list.substr(begin, end - begin);
  list.remove_prefix(end);
  return item;
}

std::string_view axsSchemaText::prefix(std::string_view qname) noexcept
{
  std::size_t const colon = qname.find(':');
  return colon == std::string_view::npos ? std::string_view() : qname.substr(0, colon);
}

std::string_view axsSchemaText::local(std::string_view qname) noexcept
{
  return qname.substr(qname.find(':') + 1);
}

std::string axsSchemaText::quoted(std::string_view text)
{
  if (text.size() <= longest_quote)
    return "'" + std::string(text) + "'";
  std::size_t end = longest_quote;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    --end;
  return "'" + std::string(text.substr(0, end)) + "...'";
}

std::string axsSchemaText::lacks_notations(std::string_view what, std::string_view name)
{
  return std::string(what) + ' ' + quoted(name) +
         " cannot have the type xs:NOTATION itself: a type that is derived from it with an enumeration of notations "
         "can";
}
