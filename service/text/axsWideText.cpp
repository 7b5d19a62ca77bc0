#include "axsWideText.h"

#include <apWide.h>

bool axsWideText::is_unicode(apString const& text) noexcept
{
  wchar_t const* const end = text.c_str() + text.length();
  for (wchar_t const* at = text.c_str(); at != end;)
  {
    utCodePoint const found = apWide::decode(at, end);
    if (!found.is_valid())
      return false;
    at += found.length;
  }
  return true;
}

bool axsWideText::to_utf8(apString const& text, utString& utf8)
{
  utf8 = text.to_utf8();
  // What is not Unicode takes three bytes in its place: a text of the same length has none of it.
  return utf8.length() == text.length() || is_unicode(text);
}
