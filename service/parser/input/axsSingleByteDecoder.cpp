#include "axsSingleByteDecoder.h"

#include <utUtf8.h>

axsDecoder::Result axsSingleByteDecoder::decode(std::string_view bytes, char* to, std::size_t room, bool) noexcept
{
  // No character of these sets takes more in UTF-8.
  std::size_t const max_bytes = 3;
  char* const begin = to;
  char const* const last = to + room - max_bytes;
  std::size_t taken = 0;
  for (; taken < bytes.size() && to <= last; ++taken)
  {
    char const byte = bytes[taken];
    if (utUtf8::is_ascii(byte))
    {
      *to++ = byte;
      continue;
    }
    char32_t const character = characters[static_cast<unsigned char>(byte) - 0x80u];
    if (character == 0)
      return {taken, static_cast<std::size_t>(to - begin), true};
    to = utUtf8::encode(character, to);
  }
  return {taken, static_cast<std::size_t>(to - begin), false};
}
