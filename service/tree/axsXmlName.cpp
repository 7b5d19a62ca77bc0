#include "axsXmlName.h"

#include <xercesc/util/XMLChar.hpp>

#include <algorithm>

namespace
{
// The parser's tables end at U+FFFF: it takes no name with a character beyond.
bool is_in_tables(wchar_t c)
{
  return static_cast<wchar_t>(static_cast<XMLCh>(c)) == c;
}

bool is_name_start(wchar_t c)
{
  return is_in_tables(c) && xercesc::XMLChar1_0::isFirstNameChar(static_cast<XMLCh>(c));
}

bool is_name_character(wchar_t c)
{
  return is_in_tables(c) && xercesc::XMLChar1_0::isNameChar(static_cast<XMLCh>(c));
}
}

bool axsXmlName::is_name(apString const& text) noexcept
{
  auto const characters = text.view();
  return !characters.empty() && is_name_start(characters.front()) &&
         std::all_of(characters.begin(), characters.end(), is_name_character);
}
