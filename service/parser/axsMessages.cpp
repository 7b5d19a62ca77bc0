#include "axsMessages.h"

std::string axsMessages::quoted(std::string_view text)
{
  return '\'' + std::string(text) + '\'';
}

std::string axsMessages::not_closed_first(std::string_view element, std::string const& since)
{
  return "the element " + quoted(element) + since + " must be closed first, by </" + std::string(element) + '>';
}

std::string axsMessages::not_closed_at_end(std::string_view element, std::string const& since)
{
  return "the document ends, but the element " + quoted(element) + since + " is not closed by </" +
         std::string(element) + '>';
}

std::string axsMessages::since_line(unsigned long long line)
{
  return ", open since line " + std::to_string(line) + ',';
}
