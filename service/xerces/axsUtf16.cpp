#include "axsUtf16.h"

#include <apWide.h>
#include <utUtf16.h>
#include <utUtf8.h>

#include <cstdint>
#include <cstring>

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

    utCodePoint const found = utUtf16::decode(text, end);
    text += found.length;
    to = utUtf8::encode(found.or_replacement(), to);
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
  wchar_t const* const end = text.c_str() + text.length();
  for (wchar_t const* at = text.c_str(); at != end;)
  {
    utCodePoint const found = apWide::decode(at, end);
    at += found.length;
    XMLCh unit[2];
    units.append(unit, utUtf16::encode(found.or_replacement(), unit));
  }
  return units;
}

std::size_t axsUtf16::length(XMLCh const* text) noexcept
{
  return text == nullptr ? 0 : std::char_traits<XMLCh>::length(text);
}
