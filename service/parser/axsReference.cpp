#include "axsReference.h"

#include "axsCharacters.h"
#include "axsInputStack.h"
#include "axsMessages.h"

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

char32_t const no_digit = 16;
// Numbers grow no further.
char32_t const too_large = 0x110000;

char32_t digit_of(char c)
{
  if (c >= '0' && c <= '9')
    return static_cast<char32_t>(c - '0');
  if (c >= 'a' && c <= 'f')
    return static_cast<char32_t>(c - 'a' + 10);
  return c >= 'A' && c <= 'F' ? static_cast<char32_t>(c - 'A' + 10) : no_digit;
}

// WFC: Legal Character (4.1); in XML 1.1, control characters are, too (XML 1.1, 2.2, [2] Char).
bool is_legal(char32_t code, bool is_xml_1_1)
{
  return is_character(code) || (is_xml_1_1 && code > 0 && code < 0x20);
}
}

bool axsReference::read(axsInputStack const& input, char const*& p, std::string& text)
{
  if (p[1] == '#')
  {
    read_character(input, p, text);
    return true;
  }
  for (Entity const& entity : predefined)
    if (skip(p, entity.reference))
    {
      text += entity.character;
      return true;
    }
  return false;
}

void axsReference::read_character(axsInputStack const& input, char const*& p, std::string& text)
{
  p += 2;
  char32_t const base = skip_character(p, 'x') ? 16 : 10;
  char const* const digits = p;
  char32_t code = 0;
  for (char32_t digit = digit_of(*p); digit < base; digit = digit_of(*++p))
    code = code < too_large ? code * base + digit : code;
  if (p == digits)
    input.unexpected(p, axsMessages::reference_number);
  if (*p != ';')
    input.unexpected(p, is(*p, name_start) ? axsMessages::quoted({p, 1}) + " is no digit of the number of a character"
                                           : axsMessages::reference_number_end);
  ++p;
  if (!is_legal(code, input.is_xml_1_1()))
    input.fail(p, axsMessages::reference_character);
  utUtf8::append(code, text);
}
