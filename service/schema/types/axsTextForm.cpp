#include "axsTextForm.h"

#include "axsCharacters.h"
#include "axsCodePoint.h"

#include <utUtf8.h>

#include <algorithm>
#include <cstddef>

namespace
{
bool is_letter(char c) noexcept
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

bool is_hex_digit(char c) noexcept
{
  return is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool is_start_at(std::string_view text, std::size_t& at) noexcept
{
  if (utUtf8::is_ascii(text[at]))
    return axsCharacters::is(text[at++], axsCharacters::name_start);
  return axsCharacters::is_name_start(axsCodePoint::next(text, at));
}

bool is_part_at(std::string_view text, std::size_t& at) noexcept
{
  if (utUtf8::is_ascii(text[at]))
    return axsCharacters::is(text[at++], axsCharacters::name);
  return axsCharacters::is_name_part(axsCodePoint::next(text, at));
}

bool are_parts(std::string_view text, std::size_t at) noexcept
{
  while (at < text.size())
    if (!is_part_at(text, at))
      return false;
  return true;
}

// scheme = alpha *( alpha | digit | "+" | "-" | "." ), RFC 2396, 3.1.
bool is_scheme(std::string_view text) noexcept
{
  return !text.empty() && is_letter(text.front()) &&
         std::all_of(text.begin(), text.end(),
           [](char c) { return is_letter(c) || is_digit(c) || c == '+' || c == '-' || c == '.'; });
}

bool are_escapes_whole(std::string_view text) noexcept
{
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1))
    if (text.size() - at < 3 || !is_hex_digit(text[at + 1]) || !is_hex_digit(text[at + 2]))
      return false;
  return true;
}

// host and port after "//"; brackets hold an IPv6 address (RFC 2732).
bool is_authority(std::string_view text) noexcept
{
  std::size_t const user = text.rfind('@');
  if (user != std::string_view::npos)
    text.remove_prefix(user + 1);
  std::size_t const open = text.find('[');
  std::size_t const close = text.find(']');
  if (open == std::string_view::npos && close == std::string_view::npos)
    return true;
  if (open != 0 || close == std::string_view::npos)
    return false;
  std::string_view const address = text.substr(1, close - 1);
  return std::all_of(address.begin(), address.end(), [](char c) { return is_hex_digit(c) || c == ':' || c == '.'; });
}
}

bool axsTextForm::is_name(std::string_view text) noexcept
{
  std::size_t at = 0;
  return !text.empty() && is_start_at(text, at) && are_parts(text, at);
}

bool axsTextForm::is_ncname(std::string_view text) noexcept
{
  return is_name(text) && text.find(':') == std::string_view::npos;
}

bool axsTextForm::is_nmtoken(std::string_view text) noexcept
{
  return !text.empty() && are_parts(text, 0);
}

// [a-zA-Z]{1,8}(-[a-zA-Z0-9]{1,8})*
bool axsTextForm::is_language(std::string_view text) noexcept
{
  std::size_t const longest = 8;
  bool is_first = true;
  while (true)
  {
    std::string_view const part = text.substr(0, text.find('-'));
    bool const fits =
      std::all_of(part.begin(), part.end(), [is_first](char c) { return is_letter(c) || (!is_first && is_digit(c)); });
    if (part.empty() || part.size() > longest || !fits)
      return false;
    if (part.size() == text.size())
      return true;
    text.remove_prefix(part.size() + 1);
    is_first = false;
  }
}

bool axsTextForm::is_uri(std::string_view text) noexcept
{
  if (!are_escapes_whole(text))
    return false;
  std::size_t const fragment = text.find('#');
  if (fragment != std::string_view::npos)
  {
    if (text.find('#', fragment + 1) != std::string_view::npos)
      return false;
    text = text.substr(0, fragment);
  }
  std::size_t const colon = text.find_first_of(":/?");
  if (colon != std::string_view::npos && text[colon] == ':')
  {
    if (!is_scheme(text.substr(0, colon)) || colon + 1 == text.size())
      return false;
    text.remove_prefix(colon + 1);
  }
  if (text.substr(0, 2) != "//")
    return true;
  text.remove_prefix(2);
  return is_authority(text.substr(0, text.find_first_of("/?")));
}
