#include "axsProlog.h"

#include "axsCharacters.h"
#include "axsEncodingName.h"
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

bool axsProlog::skip_declaration(char const*& at)
{
  if (!begins(at, "<?xml") || !is(at[5], space))
    return true;
  at = behind_spaces(at + 5);
  if (!skip(at, "version") || declared_value(at) != "1.0")
    return false;
  bool spaced = skip_spaces(at);
  if (spaced && skip(at, "encoding"))
  {
    if (!axsEncodingName::is_name(declared_value(at)))
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
