#include "axmAbstractXmlReader.h"

#include <algorithm>

namespace
{
bool is_one_of(utString const& name, std::initializer_list<char const*> spellings)
{
  return std::any_of(
    spellings.begin(), spellings.end(), [&](char const* spelling) { return name == ut_lit(spelling); });
}
}

axmAbstractXmlReader::axmAbstractXmlReader() = default;
axmAbstractXmlReader::~axmAbstractXmlReader() = default;

utString axmAbstractXmlReader::encoding()
{
  return ut_lit("Unknown");
}

void axmAbstractXmlReader::dump_error(std::ostream&) const {}

bool axmAbstractXmlReader::matches_utf8(utString const& name)
{
  return is_one_of(name, {"UTF-8", "utf-8", "UTF8", "utf8"});
}

bool axmAbstractXmlReader::matches_utf16(utString const& name)
{
  return is_one_of(name, {"UTF-16", "utf-16", "UTF16", "utf16"});
}

bool axmAbstractXmlReader::is_safe_ascii(utString const& text)
{
  return std::all_of(text.c_str(), text.c_str() + text.length(),
    [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '\\' && c != '{' && c != '}'; });
}
