#include "axsProlog.h"

#include "axsCharacters.h"

#include <algorithm>
#include <string_view>

namespace
{
using namespace axsCharacters;

// Reads a text in quotes. Whether there was one, without any character that would be unusual there.
bool literal(char const*& at, std::string_view& text)
{
  char const quote = *at;
  if (quote != '"' && quote != '\'')
    return false;
  char const* const from = at + 1;
  at = behind_value(from, quote);
  text = {from, static_cast<std::size_t>(at - from)};
  return skip(at, {&quote, 1});
}

// Reads, of the XML declaration, '=' and a value (2.8, [25] Eq). Empty where there is none.
std::string_view declared_value(char const*& at)
{
  std::string_view value;
  skip_spaces(at);
  if (!skip(at, "="))
    return {};
  skip_spaces(at);
  return literal(at, value) ? value : std::string_view();
}

// 2.3, [13] PubidChar
bool is_public_id_character(char c)
{
  return is(c, name) || std::string_view(" '()+,/=?;!*#@$%").find(c) != std::string_view::npos;
}

// Moves behind an external identifier (4.2.2, [75] ExternalID). Whether there was one.
bool external_id(char const*& at)
{
  bool const is_public = skip(at, "PUBLIC");
  if (!is_public && !skip(at, "SYSTEM"))
    return false;
  if (is_public)
  {
    std::string_view id;
    if (!skip_spaces(at) || !literal(at, id) || !std::all_of(id.begin(), id.end(), is_public_id_character))
      return false;
  }
  std::string_view id;
  return skip_spaces(at) && literal(at, id);
}
}

bool axsProlog::skip_declaration(char const*& at, Encoding& encoding)
{
  bool const has_mark = skip(at, "\xEF\xBB\xBF");
  if (!begins(at, "<?xml") || !is(at[5], space))
    return true;
  at = behind_spaces(at + 5);
  if (!skip(at, "version") || declared_value(at) != "1.0")
    return false;
  bool spaced = skip_spaces(at);
  if (spaced && skip(at, "encoding"))
  {
    std::string_view const declared = declared_value(at);
    if (!has_mark && is_equal_in_any_case(declared, "us-ascii"))
      encoding = Encoding::ascii;
    else if (!is_equal_in_any_case(declared, "utf-8"))
      return false;
    spaced = skip_spaces(at);
  }
  if (spaced && skip(at, "standalone"))
  {
    std::string_view const standalone = declared_value(at);
    if (standalone != "yes" && standalone != "no")
      return false;
    skip_spaces(at);
  }
  return skip(at, "?>");
}

bool axsProlog::skip_doctype(char const*& at)
{
  if (!skip(at, "<!DOCTYPE") || !skip_spaces(at))
    return false;
  char const* const name = at;
  at = behind_name(name);
  if (at == name || (skip_spaces(at) && *at != '>' && !external_id(at)))
    return false;
  skip_spaces(at);
  return skip(at, ">");
}
