#include "axsDoctypeText.h"

#include <cstring>

namespace
{
std::string_view const declaration = "<!DOCTYPE";

bool begins(std::string_view text, std::size_t at, std::string_view with)
{
  return text.compare(at, with.size(), with) == 0;
}

// Behind the next `closing`; npos if there is none.
std::size_t behind(std::string_view text, std::size_t at, std::string_view closing)
{
  std::size_t const found = text.find(closing, at);
  return found == std::string_view::npos ? found : found + closing.size();
}

// Where the first markup is that is no processing instruction and no comment; npos where `text` ends before.
std::size_t prolog_end(std::string_view text)
{
  std::size_t at = begins(text, 0, "\xEF\xBB\xBF") ? 3 : 0;
  while (true)
  {
    at = text.find_first_not_of(" \t\r\n", at);
    if (at == std::string_view::npos)
      return at;
    if (begins(text, at, "<?"))
      at = behind(text, at, "?>");
    else if (begins(text, at, "<!--"))
      at = behind(text, at + std::strlen("<!--"), "-->");
    else
      return at;
    if (at == std::string_view::npos)
      return at;
  }
}
}

bool axsDoctypeText::is_absent(std::string_view head) noexcept
{
  std::size_t const at = prolog_end(head);
  if (at == std::string_view::npos || head[at] != '<' || at + 1 >= head.size())
    return false;
  unsigned char const next = static_cast<unsigned char>(head[at + 1]);
  return next > ' ' && next != '!' && next != '?';
}

std::string_view axsDoctypeText::find(std::string_view document) noexcept
{
  std::size_t const start = prolog_end(document);
  if (start == std::string_view::npos || !begins(document, start, declaration))
    return {};

  bool in_subset = false;
  for (std::size_t at = start + declaration.size(); at < document.size();)
  {
    char const c = document[at];
    if (c == '"' || c == '\'')
      at = behind(document, at + 1, std::string_view(&document[at], 1));
    else if (begins(document, at, "<!--"))
      at = behind(document, at + std::strlen("<!--"), "-->");
    else if (begins(document, at, "<?"))
      at = behind(document, at, "?>");
    else
    {
      ++at;
      if (c == '[' || c == ']')
        in_subset = c == '[';
      else if (c == '>' && !in_subset)
        return document.substr(start, at - start);
    }
    if (at == std::string_view::npos)
      break;
  }
  return {};
}
