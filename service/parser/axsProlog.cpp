#include "axsProlog.h"

#include "axsCharacters.h"
#include "axsExternalId.h"

#include <string_view>

namespace
{
using namespace axsCharacters;

// Reads, of the XML declaration, '=' and a value (2.8, [25] Eq). Empty where there is none.
std::string_view declared_value(char const*& at)
{
  std::string_view value;
  skip_spaces(at);
  if (!skip(at, "="))
    return {};
  skip_spaces(at);
  return read_literal(at, value) ? value : std::string_view();
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

bool axsProlog::skip_doctype_begin(char const*& at)
{
  if (!skip(at, "<!DOCTYPE") || !skip_spaces(at) || !skip_name(at))
    return false;
  if (skip_spaces(at) && *at != '[' && *at != '>' && !axsExternalId::skip(at))
    return false;
  skip_spaces(at);
  return *at == '[' || *at == '>';
}
