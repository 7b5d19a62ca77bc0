#include "axsBinary.h"

#include <utXmlCharacter.h>

namespace
{
// -1 of what is no digit.
int hex_digit(char c) noexcept
{
  if (c >= '0' && c <= '9')
    return c - '0';
  char const small = static_cast<char>(c | 0x20);
  return small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

int base64_digit(char c) noexcept
{
  if (c >= 'A' && c <= 'Z')
    return c - 'A';
  if (c >= 'a' && c <= 'z')
    return c - 'a' + 26;
  if (c >= '0' && c <= '9')
    return c - '0' + 52;
  if (c == '+')
    return 62;
  return c == '/' ? 63 : -1;
}

void append(unsigned byte, std::string* bytes)
{
  if (bytes != nullptr)
    *bytes += static_cast<char>(byte);
}
}

bool axsBinary::read_hex(std::string_view text, std::string* bytes, std::size_t& count)
{
  if (text.size() % 2 != 0)
    return false;
  for (std::size_t i = 0; i < text.size(); i += 2)
  {
    int const high = hex_digit(text[i]);
    int const low = hex_digit(text[i + 1]);
    if (high < 0 || low < 0)
      return false;
    append(static_cast<unsigned>(high << 4 | low), bytes);
  }
  count = text.size() / 2;
  return true;
}

// Groups of four digits, of which the last may end with one or two '='; those leave bits over, which are 0. White space
// may stand between any two.
bool axsBinary::read_base64(std::string_view text, std::string* bytes, std::size_t& count)
{
  unsigned bits = 0;
  unsigned held = 0; // how many bits are waiting
  std::size_t digits = 0;
  std::size_t fillers = 0;
  count = 0;
  for (char const c : text)
  {
    if (utXmlCharacter::is_space(c))
      continue;
    if (c == '=')
    {
      ++fillers;
      continue;
    }
    int const digit = base64_digit(c);
    if (digit < 0 || fillers > 0)
      return false;
    ++digits;
    bits = bits << 6 | static_cast<unsigned>(digit);
    held += 6;
    if (held < 8)
      continue;
    held -= 8;
    append(bits >> held & 0xFF, bytes);
    ++count;
    bits &= (1u << held) - 1;
  }
  return (digits + fillers) % 4 == 0 && fillers <= 2 && bits == 0;
}
