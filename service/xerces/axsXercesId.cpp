#include "axsXercesId.h"

#include "axsSystemId.h"
#include "axsUtf16.h"

#include <string_view>

namespace
{
std::string_view const scheme = "axs:";

bool stands_for_itself(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' || c == '.' ||
         c == '-' || c == '_' || c == '~';
}

std::string_view view(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}
}

std::basic_string<XMLCh> axsXercesId::of(apPath const& path)
{
  char const* const digits = "0123456789ABCDEF";
  utString const text = path.path();
  std::string id(scheme);
  for (char const c : view(text))
    if (stands_for_itself(c))
      id += c;
    else
    {
      id += '%';
      id += digits[static_cast<unsigned char>(c) >> 4];
      id += digits[static_cast<unsigned char>(c) & 0xF];
    }
  return {id.begin(), id.end()};
}

apPath axsXercesId::path(XMLCh const* system_id)
{
  std::string const id = axsUtf16::to_utf8(system_id);
  return id.compare(0, scheme.size(), scheme) == 0 ? apPath(axsSystemId::decoded(id.substr(scheme.size())).c_str())
                                                   : apPath();
}
