#include "axsUtf16.h"

#include <cstdint>
#include <cstring>

namespace
{
bool is_high_surrogate(char32_t c)
{
  return c >= 0xD800 && c <= 0xDBFF;
}

bool is_low_surrogate(char32_t c)
{
  return c >= 0xDC00 && c <= 0xDFFF;
}

// One character that is not ASCII.
char* write_character(char* to, char32_t c)
{
  if (c < 0x800)
    *to++ = static_cast<char>(0xC0 | (c >> 6));
  else
  {
    if (c < 0x10000)
      *to++ = static_cast<char>(0xE0 | (c >> 12));
    else
    {
      *to++ = static_cast<char>(0xF0 | (c >> 18));
      *to++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    }
    *to++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
  }
  *to++ = static_cast<char>(0x80 | (c & 0x3F));
  return to;
}
}

void axsUtf16::append_utf8(XMLCh const* text, std::size_t length, std::string& utf8)
{
  std::size_t const before = utf8.size();
  // No unit needs more than three bytes, and a pair four.
  utf8.resize(before + length * 3);
  char* to = utf8.data() + before;
  XMLCh const* const end = text + length;
  while (text != end)
  {
    // Four units of ASCII at a time, since most text is.
    while (end - text >= 4)
    {
      std::uint64_t units = 0;
      std::memcpy(&units, text, sizeof units);
      if ((units & 0xFF80FF80FF80FF80u) != 0)
        break;
      for (int i = 0; i < 4; ++i)
        to[i] = static_cast<char>(text[i]);
      to += 4;
      text += 4;
    }
    if (text == end)
      break;

    char32_t c = static_cast<char16_t>(*text++);
    if (c < 0x80)
    {
      *to++ = static_cast<char>(c);
      continue;
    }
    if (is_high_surrogate(c) && text != end && is_low_surrogate(static_cast<char16_t>(*text)))
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char16_t>(*text++) - 0xDC00u);
    else if (is_high_surrogate(c) || is_low_surrogate(c))
      c = 0xFFFD;
    to = write_character(to, c);
  }
  utf8.resize(static_cast<std::size_t>(to - utf8.data()));
}

std::string axsUtf16::to_utf8(XMLCh const* text)
{
  std::string utf8;
  append_utf8(text, length(text), utf8);
  return utf8;
}

apString axsUtf16::to_string(XMLCh const* text)
{
  return apString::from_utf8(to_utf8(text));
}

std::basic_string<XMLCh> axsUtf16::from_utf8(std::string_view utf8)
{
  return from_string(apString::from_utf8(utf8));
}

std::basic_string<XMLCh> axsUtf16::from_string(apString const& text)
{
  std::basic_string<XMLCh> units;
  units.reserve(text.view().size());
  for (wchar_t const unit : text.view())
  {
    auto const c = static_cast<char32_t>(unit);
    if constexpr (sizeof(wchar_t) == 2)
      units += static_cast<XMLCh>(c);
    else if (c < 0x10000)
      units += static_cast<XMLCh>(c);
    else
    {
      units += static_cast<XMLCh>(0xD800 + ((c - 0x10000) >> 10));
      units += static_cast<XMLCh>(0xDC00 + ((c - 0x10000) & 0x3FF));
    }
  }
  return units;
}

std::size_t axsUtf16::length(XMLCh const* text) noexcept
{
  return text == nullptr ? 0 : std::char_traits<XMLCh>::length(text);
}
