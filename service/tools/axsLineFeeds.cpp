#include "axsLineFeeds.h"

#include <cstddef>

namespace
{
// The length of the line end at `at`; 0 if there is none (XML 1.0, 2.11; XML 1.1, 2.11).
std::size_t line_end_at(std::string const& text, std::size_t at, bool is_xml_1_1)
{
  char const c = text[at];
  if (c == '\r' && text.compare(at, 2, "\r\n") == 0)
    return 2;
  if (c == '\r' && is_xml_1_1 && text.compare(at, 3, "\r\xC2\x85") == 0)
    return 3;
  if (c == '\r' || c == '\n')
    return 1;
  if (!is_xml_1_1)
    return 0;
  return text.compare(at, 2, "\xC2\x85") == 0 ? 2 : text.compare(at, 3, "\xE2\x80\xA8") == 0 ? 3 : 0;
}
}

void axsLineFeeds::normalise(std::string& text, bool is_xml_1_1)
{
  if (!is_xml_1_1 && text.find('\r') == std::string::npos)
    return;
  std::size_t to = 0;
  for (std::size_t at = 0; at < text.size();)
  {
    std::size_t const length = line_end_at(text, at, is_xml_1_1);
    text[to++] = length > 0 ? '\n' : text[at];
    at += length > 0 ? length : 1;
  }
  text.resize(to);
}
