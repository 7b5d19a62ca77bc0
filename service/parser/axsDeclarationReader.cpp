#include "axsDeclarationReader.h"

#include "axsEntities.h"
#include "axsMessages.h"
#include "axsReference.h"
#include "axsXmlName.h"

#include <algorithm>

namespace
{
using namespace axsCharacters;

// 2.3, [13] PubidChar
bool is_public_id_character(char c)
{
  return is(c, name) || std::string_view(" \n'()+,/=?;!*#@$%").find(c) != std::string_view::npos;
}

// 4.2.2: white space becomes one space, and none at the ends.
std::string normalised(std::string const& public_id)
{
  std::string made;
  for (char const c : public_id)
    if (!is(c, space))
      made += c;
    else if (!made.empty() && made.back() != ' ')
      made += ' ';
  if (!made.empty() && made.back() == ' ')
    made.pop_back();
  return made;
}

bool is_name_start(char const* p)
{
  return end_of_name(p) != p;
}
}

bool axsDeclarationReader::spaces()
{
  bool any = false;
  while (true)
  {
    any = in.skip_spaces(in.at) || any;
    if (*in.at == '%' && is_name_start(in.at + 1))
      follow_parameter();
    else if (in.is_end(in.at) && in.depth() > depth)
      in.close();
    else
      return any;
    any = true;
  }
}

// WFC: PEs in Internal Subset (2.8)
void axsDeclarationReader::follow_parameter()
{
  if (!in.is_outside_document())
    in.fail(in.at, axsMessages::parameter_place);
  char const* const reference = in.at;
  axsEntity& entity = all_entities.parameter(in, in.at);
  in.open(entity, reference);
}

void axsDeclarationReader::need_spaces()
{
  if (!spaces())
    unexpected(axsMessages::space_expected);
}

std::string axsDeclarationReader::name(char const* missing)
{
  char const* const begin = in.at;
  if (!skip_name(in.at))
    unexpected(missing);
  in.need(in.at);
  return std::string(begin, in.at);
}

std::string axsDeclarationReader::qualified_name(char const* missing)
{
  std::string found = name(missing);
  if (!axsXmlName::is_qualified(found))
    in.fail(in.at, axsMessages::quoted(found) + " is not a name with a prefix");
  return found;
}

std::string axsDeclarationReader::plain_name(char const* missing)
{
  std::string found = name(missing);
  if (found.find(':') != std::string::npos)
    in.fail(in.at, axsMessages::name_colon);
  return found;
}

std::string axsDeclarationReader::name_token(char const* missing)
{
  char const* const begin = in.at;
  in.at = end_of_name_characters(in.at);
  if (in.at == begin)
    unexpected(missing);
  in.need(in.at);
  return std::string(begin, in.at);
}

std::string axsDeclarationReader::literal(char const* missing)
{
  if (!is_at_quote())
    unexpected(missing);
  char const quote = *in.at++;
  std::string text;
  char const* from = in.at;
  auto const take_to = [&](char const* to)
  {
    in.check_controls(from, to);
    text.append(from, static_cast<std::size_t>(to - from));
  };
  while (true)
  {
    in.at = end_of_text<apByteBlock, '"', '\'', '\r'>(in.at);
    if (*in.at == quote)
      break;
    char const* const special = in.at;
    if (is_at_quote())
      ++in.at;
    else if (in.is_end(in.at))
      unexpected(axsMessages::literal_end);
    else if (in.pass_special(in.at) == axsInputStack::Special::line_end)
    {
      take_to(special);
      text += '\n';
      from = in.at;
    }
  }
  take_to(in.at++);
  return text;
}

std::string axsDeclarationReader::entity_value()
{
  std::size_t const begun = in.depth();
  char const quote = *in.at++;
  std::string value;
  while (true)
  {
    char const* const from = in.at;
    in.at = end_of_text<apByteBlock, '"', '\'', '&', '%', '\r'>(in.at);
    value.append(from, in.at);
    in.check_controls(from, in.at);
    char const* const special = in.at;
    if (*in.at == quote && in.depth() == begun)
      break;
    if (*in.at == '&')
      read_entity_reference(value);
    else if (*in.at == '%')
    {
      if (!is_name_start(in.at + 1))
        unexpected(axsMessages::parameter_value);
      follow_parameter();
    }
    else if (is_at_quote())
      value += *in.at++;
    else if (in.is_end(in.at) && in.depth() > begun)
      in.close();
    else if (in.is_end(in.at))
      unexpected(axsMessages::literal_end);
    else if (in.pass_special(in.at) == axsInputStack::Special::line_end)
      value += '\n';
    else
      value.append(special, in.at);
  }
  ++in.at;
  return value;
}

// Those to characters are expanded, others stay (4.4.7).
void axsDeclarationReader::read_entity_reference(std::string& value)
{
  if (in.at[1] == '#')
    return axsReference::read_character(in, in.at, value);
  char const* const begin = in.at++;
  if (!skip_name(in.at))
    unexpected(axsMessages::reference_name);
  if (!is_at(';'))
    unexpected("the reference '" + std::string(begin, in.at) + "' is not ended by ';'; a plain '&' is written &amp;");
  if (std::find(begin, in.at, ':') != in.at)
    in.fail(begin, axsMessages::name_colon);
  value.append(begin, ++in.at);
}

std::string axsDeclarationReader::attribute_value(std::string_view attribute, bool is_of_tokens)
{
  values.clear();
  char const* p = in.at;
  std::string_view value = values.read(p, attribute);
  in.at = p;
  if (is_of_tokens)
    value = values.collapsed(value);
  return std::string(value);
}

std::string axsDeclarationReader::public_literal()
{
  char const* const begin = in.at + 1;
  std::string const id = literal(axsMessages::public_literal);
  auto const wrong = std::find_if_not(id.begin(), id.end(), is_public_id_character);
  if (wrong != id.end())
    in.fail(std::min(begin + (wrong - id.begin()), in.at), axsMessages::public_character);
  return normalised(id);
}

bool axsDeclarationReader::external_id(axsDtd::ExternalId& id, bool is_of_notation)
{
  bool spaced = false;
  if (take("PUBLIC"))
  {
    need_spaces();
    id.public_id = public_literal();
    id.has_public_id = true;
    spaced = spaces();
    if (is_of_notation && !is_at_quote())
      return true;
  }
  else if (take("SYSTEM"))
    spaced = spaces();
  else
    return false;
  if (!spaced)
    unexpected(axsMessages::space_expected);
  id.system_id = literal(axsMessages::system_literal);
  id.has_system_id = true;
  return true;
}

void axsDeclarationReader::end(char const* what)
{
  spaces();
  if (!take(">"))
    unexpected("'>' is expected, which ends the declaration of " + std::string(what));
}
