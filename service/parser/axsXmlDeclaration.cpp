#include "axsXmlDeclaration.h"

#include "axsCharacters.h"
#include "axsInputStack.h"
#include "axsMessages.h"

#include <algorithm>

namespace
{
using namespace axsCharacters;

// 2.8, [26] VersionNum
bool is_version(std::string_view text)
{
  return text.size() > 2 && text.substr(0, 2) == "1." &&
         text.find_first_not_of("0123456789", 2) == std::string_view::npos;
}

// 4.3.3, [81] EncName
bool is_encoding_name(std::string_view text)
{
  return !text.empty() && is(text.front(), name_start) && text.front() != '_' && text.front() != ':' &&
         std::all_of(text.begin(), text.end(), [](char c) { return is(c, name) && c != ':'; });
}
}

bool axsXmlDeclaration::begins(char const* p)
{
  return axsCharacters::begins(p, "<?xml") && (is(p[5], space) || p[5] == '?');
}

axsXmlDeclaration::axsXmlDeclaration(axsInputStack& input, Kind kind) : in(input)
{
  bool const is_text = kind == Kind::text;
  char const* p = in.at + 5;
  in.skip_spaces(p);
  bool spaced = true;
  if (skip(p, "version"))
  {
    read_version(p);
    spaced = in.skip_spaces(p);
  }
  else if (!is_text)
    in.unexpected(p, axsMessages::version_first);
  if (axsCharacters::begins(p, "encoding"))
  {
    if (!spaced)
      in.unexpected(p, axsMessages::declaration_space);
    read_encoding(p);
    spaced = in.skip_spaces(p);
  }
  else if (is_text)
    in.unexpected(p, axsMessages::text_declaration_encoding);
  if (!is_text && axsCharacters::begins(p, "standalone"))
  {
    if (!spaced)
      in.unexpected(p, axsMessages::declaration_space);
    read_standalone(p);
    in.skip_spaces(p);
  }
  if (!skip(p, "?>"))
    in.unexpected(p, is_text ? axsMessages::text_declaration_end : axsMessages::declaration_end);
  input.at = p;
}

// 2.8, [25] Eq and a value in quotes
std::string axsXmlDeclaration::read_value(char const*& p) const
{
  in.skip_spaces(p);
  if (!skip_character(p, '='))
    in.unexpected(p, axsMessages::declaration_value);
  in.skip_spaces(p);
  std::string_view value;
  if (!read_literal(p, value))
    in.unexpected(p, axsMessages::declaration_value);
  return std::string(value);
}

void axsXmlDeclaration::read_version(char const*& p)
{
  version_number = read_value(p);
  if (!is_version(version_number))
    in.fail(p, "there is no XML version \"" + version_number + "\"");
}

void axsXmlDeclaration::read_encoding(char const*& p)
{
  skip(p, "encoding");
  encoding_name = read_value(p);
  if (!is_encoding_name(encoding_name))
    in.fail(p, axsMessages::encoding_name);
}

// 2.9, [32] SDDecl
void axsXmlDeclaration::read_standalone(char const*& p)
{
  skip(p, "standalone");
  standalone_word = read_value(p);
  if (standalone_word != "yes" && standalone_word != "no")
    in.fail(p, axsMessages::standalone_value);
}
