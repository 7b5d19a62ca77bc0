#include "axsReference.h"

#include "axsCharacters.h"

#include <utUtf8.h>

#include <string_view>

namespace
{
using namespace axsCharacters;

struct Entity
{
  std::string_view reference;
  char character;
};

Entity const predefined[] = {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}};
}

bool axsReference::read(char const*& at, std::string& text)
{
  for (Entity const& entity : predefined)
    if (skip(at, entity.reference))
    {
      text += entity.character;
      return true;
    }
  if (!skip(at, "&#"))
    return false;
  char32_t const base = skip(at, "x") ? 16 : 10;
  char32_t code = 0;
  char const* const digits = at;
  // Eight digits make no number that does not fit.
  for (; at - digits < 8; ++at)
  {
    char32_t digit = 0;
    if (*at >= '0' && *at <= '9')
      digit = static_cast<char32_t>(*at - '0');
    else if (base == 16 && *at >= 'a' && *at <= 'f')
      digit = static_cast<char32_t>(*at - 'a' + 10);
    else if (base == 16 && *at >= 'A' && *at <= 'F')
      digit = static_cast<char32_t>(*at - 'A' + 10);
    else
      break;
    code = code * base + digit;
  }
  if (at == digits || !is_character(code) || !skip(at, ";"))
    return false;
  utUtf8::append(code, text);
  return true;
}
