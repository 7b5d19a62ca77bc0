#pragma once

#include <string>
#include <string_view>

namespace axsShownText
{
/// The text, or the beginning of a long one.
inline std::string shortened(std::string_view text)
{
  constexpr std::size_t longest = 100;
  if (text.size() <= longest)
    return std::string(text);
  std::size_t end = longest;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    --end;
  return std::string(text.substr(0, end)) + "...";
}
}
