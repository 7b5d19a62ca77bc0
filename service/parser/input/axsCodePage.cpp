#include "axsCodePage.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace
{
struct CodePage
{
  std::string_view key;
  unsigned int number;
};

// Names without punctuation, in small letters. Those of the kind "ibm037" and "windows-874" say their number.
CodePage const code_pages[] = {
  {"shiftjis", 932},
  {"sjis", 932},
  {"csshiftjis", 932},
  {"mskanji", 932},
  {"windows31j", 932},
  {"eucjp", 20932},
  {"gb2312", 936},
  {"csgb2312", 936},
  {"gbk", 936},
  {"gb18030", 54936},
  {"big5", 950},
  {"csbig5", 950},
  {"euckr", 949},
  {"cseuckr", 949},
  {"ksc56011987", 949},
  {"tis620", 874},
  {"macintosh", 10000},
};

std::string key_of(std::string_view name)
{
  std::string key;
  for (char const c : name)
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
      key += c;
    else if (c >= 'A' && c <= 'Z')
      key += static_cast<char>(c - 'A' + 'a');
  return key;
}

unsigned int number_in(std::string_view key)
{
  for (std::string_view const start : {"ibm", "cp", "windows"})
  {
    std::string_view const digits = key.substr(std::min(start.size(), key.size()));
    bool const is_number =
      !digits.empty() && digits.size() < 6 && digits.find_first_not_of("0123456789") == digits.npos;
    if (key.substr(0, start.size()) == start && is_number)
      return static_cast<unsigned int>(std::stoul(std::string(digits)));
  }
  return 0;
}
}

unsigned int axsCodePage::number_of(std::string_view name)
{
  std::string const key = key_of(name);
  CodePage const* const found = std::find_if(
    std::begin(code_pages), std::end(code_pages), [&key](CodePage const& page) { return page.key == key; });
  return found == std::end(code_pages) ? number_in(key) : found->number;
}
