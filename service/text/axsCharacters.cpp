#include "axsCharacters.h"

#include "axsXmlName.h"

#include <algorithm>

namespace
{
// What is left of a sequence of `length` bytes, whose first one gave `code`; the smallest code that needs so many is
// `smallest` (The Unicode Standard, 3.9, UTF-8).
axsCharacters::Character read_rest(char const* at, char32_t code, std::size_t length, char32_t smallest)
{
  for (std::size_t i = 1; i < length; ++i)
  {
    auto const byte = static_cast<unsigned char>(at[i]);
    if ((byte & 0xC0) != 0x80)
      return {0, 0};
    code = code << 6 | (byte & 0x3Fu);
  }
  if (code < smallest || !axsCharacters::is_character(code))
    return {0, 0};
  return {code, length};
}

// The length of the character at `at`, one beyond ASCII for which `test` holds; 0 of another one.
std::size_t length_in_name(char const* at, bool (*test)(char32_t) noexcept)
{
  if (axsCharacters::is_ascii(*at))
    return 0;
  axsCharacters::Character const found = axsCharacters::character(at);
  return test(found.code) ? found.length : 0;
}
}

bool axsCharacters::is_equal_in_any_case(std::string_view text, std::string_view lower_case)
{
  return std::equal(text.begin(), text.end(), lower_case.begin(), lower_case.end(),
    [](char c, char lower) { return (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) == lower; });
}

axsCharacters::Character axsCharacters::character(char const* at)
{
  auto const byte = static_cast<unsigned char>(*at);
  if (byte < 0x80)
    return {byte, is_character(byte) ? 1u : 0u};
  if (byte < 0xE0)
    return read_rest(at, byte & 0x1Fu, byte < 0xC0 ? 1 : 2, 0x80);
  if (byte < 0xF0)
    return read_rest(at, byte & 0xFu, 3, 0x800);
  return byte < 0xF8 ? read_rest(at, byte & 0x7u, 4, 0x10000) : Character{0, 0};
}

bool axsCharacters::is_character(char32_t code)
{
  if (code < 0x20)
    return code == '\t' || code == '\n' || code == '\r';
  return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF) && code != 0xFFFE && code != 0xFFFF;
}

bool axsCharacters::skip_multibyte(char const*& at)
{
  if (is_ascii(*at))
    return false;
  do
  {
    std::size_t const length = character(at).length;
    if (length == 0)
      return false;
    at += length;
  } while (!is_ascii(*at));
  return true;
}

void axsCharacters::append_utf8(char32_t code, std::string& text)
{
  if (code < 0x80)
  {
    text += static_cast<char>(code);
    return;
  }
  if (code < 0x800)
    text += static_cast<char>(0xC0 | code >> 6);
  else
  {
    if (code < 0x10000)
      text += static_cast<char>(0xE0 | code >> 12);
    else
    {
      text += static_cast<char>(0xF0 | code >> 18);
      text += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    }
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  text += static_cast<char>(0x80 | (code & 0x3F));
}

char const* axsCharacters::behind_name(char const* at)
{
  if (is(*at, name_start))
    return behind_rest_of_name(at + 1);
  std::size_t const length = length_in_name(at, axsXmlName::is_start);
  return length == 0 ? at : behind_rest_of_name(at + length);
}

char const* axsCharacters::behind_rest_of_name(char const* at)
{
  while (true)
  {
    while (is(*at, name))
      ++at;
    std::size_t const length = length_in_name(at, axsXmlName::is_part);
    if (length == 0)
      return at;
    at += length;
  }
}
