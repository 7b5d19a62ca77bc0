#include "axsXmlName.h"

#include "axsCharacters.h"

#include <apWide.h>

bool axsXmlName::is_name(apString const& text) noexcept
{
  wchar_t const* const begin = text.c_str();
  wchar_t const* const end = begin + text.length();
  for (wchar_t const* at = begin; at != end;)
  {
    utCodePoint const found = apWide::decode(at, end);
    // What is no code point is in no name.
    if (at == begin ? !axsCharacters::is_name_start(found.code) : !axsCharacters::is_name_part(found.code))
      return false;
    at += found.length;
  }
  return !text.empty();
}

bool axsXmlName::is_qualified(std::string_view name)
{
  std::size_t const colon = name.find(':');
  if (colon == std::string_view::npos)
    return true;
  std::string_view const local = name.substr(colon + 1);
  return colon > 0 && local.find(':') == std::string_view::npos && is_name(apString::from_utf8(local));
}
