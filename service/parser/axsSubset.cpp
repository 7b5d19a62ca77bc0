#include "axsSubset.h"

#include "axsAttributeValue.h"
#include "axsCharacters.h"
#include "axsContentModel.h"
#include "axsEntities.h"
#include "axsExternalId.h"
#include "axsNameCache.h"
#include "axsReference.h"

#include <algorithm>
#include <string_view>

namespace
{
using namespace axsCharacters;

std::string_view between(char const* from, char const* to)
{
  return {from, static_cast<std::size_t>(to - from)};
}

bool skip_spaced_name(char const*& at)
{
  return skip_spaces(at) && skip_name(at);
}

bool skip_end(char const*& at)
{
  skip_spaces(at);
  return skip_character(at, '>');
}

// Behind "<!--".
bool skip_rest_of_comment(char const*& at)
{
  while (true)
  {
    at = behind_text<apByteBlock, '-', '\r'>(at);
    if (skip(at, "--"))
      return skip_character(at, '>');
    if (*at == '-' || *at == '\r')
      ++at;
    else if (!skip_multibyte(at))
      return false;
  }
}

// Behind "<?".
bool skip_rest_of_instruction(char const*& at)
{
  char const* const target = at;
  if (!skip_name(at) || std::find(target, at, ':') != at || is_equal_in_any_case(between(target, at), "xml"))
    return false;
  if (!skip_spaces(at))
    return skip(at, "?>");
  while (true)
  {
    at = behind_text<apByteBlock, '?', '\r'>(at);
    if (skip(at, "?>"))
      return true;
    if (*at == '?' || *at == '\r')
      ++at;
    else if (!skip_multibyte(at))
      return false;
  }
}

// Behind "<!ELEMENT" (3.2, [45] elementdecl).
bool skip_rest_of_element(char const*& at)
{
  return skip_spaced_name(at) && skip_spaces(at) && axsContentModel::skip(at) && skip_end(at);
}

// Behind "<!NOTATION" (4.7, [82] NotationDecl).
bool skip_rest_of_notation(char const*& at)
{
  return skip_spaced_name(at) && skip_spaces(at) && axsExternalId::skip_of_notation(at) && skip_end(at);
}

bool is_predefined(std::string_view entity)
{
  return entity == "lt" || entity == "gt" || entity == "amp" || entity == "quot" || entity == "apos";
}

// A reference in the value of an entity: those to characters are expanded, others stay (4.4.7).
bool read_reference(char const*& at, std::string& replacement)
{
  if (begins(at, "&#"))
    return axsReference::read(at, replacement);
  char const* const begin = at++;
  if (!skip_name(at) || !skip_character(at, ';'))
    return false;
  replacement += between(begin, at);
  return true;
}

// 2.3, [9] EntityValue, without references to parameter entities. Appends the replacement text (4.5).
bool read_entity_value(char const*& at, std::string& replacement)
{
  char const quote = *at;
  if (quote != '"' && quote != '\'')
    return false;
  char const* from = ++at;
  while (true)
  {
    at = behind_text<apByteBlock, '"', '\'', '&', '%', '\r'>(at);
    switch (*at)
    {
    case '&':
      replacement += between(from, at);
      if (!read_reference(at, replacement))
        return false;
      from = at;
      break;
    case '"':
    case '\'':
      if (*at == quote)
      {
        replacement += between(from, at++);
        return true;
      }
      ++at;
      break;
    case '\r':
      replacement += between(from, at);
      skip_line_end(at);
      replacement += '\n';
      from = at;
      break;
    default:
      if (!skip_multibyte(at))
        return false;
    }
  }
}

// Names or, where they are none, name tokens in parentheses (3.3.1, [58] NotationType, [59] Enumeration).
bool skip_group(char const*& at, bool (*skip_one)(char const*&))
{
  if (!skip_character(at, '('))
    return false;
  do
  {
    skip_spaces(at);
    if (!skip_one(at))
      return false;
    skip_spaces(at);
  } while (skip_character(at, '|'));
  return skip_character(at, ')');
}

bool skip_name_token(char const*& at)
{
  char const* const before = at;
  at = behind_rest_of_name(at);
  return at != before;
}

// 3.3.1, [54] AttType
bool read_type(char const*& at, axsAttributeList::Type& type)
{
  type = axsAttributeList::Type::tokens;
  if (*at == '(')
    return skip_group(at, skip_name_token);
  if (skip(at, "NOTATION"))
    return skip_spaces(at) && skip_group(at, skip_name);
  if (skip(at, "CDATA"))
  {
    type = axsAttributeList::Type::character_data;
    return true;
  }
  for (char const* const name : {"IDREFS", "IDREF", "ID", "ENTITIES", "ENTITY", "NMTOKENS", "NMTOKEN"})
    if (skip(at, name))
      return true;
  return false;
}
}

bool axsSubset::read(char const*& at)
{
  forget();
  while (true)
  {
    skip_spaces(at);
    if (skip_character(at, ']'))
      return true;
    if (!declaration(at))
      return false;
  }
}

bool axsSubset::declaration(char const*& at)
{
  if (skip(at, "<!ELEMENT"))
    return skip_rest_of_element(at);
  if (skip(at, "<!ATTLIST"))
    return attribute_list(at);
  if (skip(at, "<!--"))
    return skip_rest_of_comment(at);
  if (skip(at, "<!ENTITY"))
    return entity(at);
  if (skip(at, "<?"))
    return skip_rest_of_instruction(at);
  return skip(at, "<!NOTATION") && skip_rest_of_notation(at);
}

// Behind "<!ENTITY", of one in the document (4.2, [71] GEDecl).
bool axsSubset::entity(char const*& at)
{
  if (!skip_spaces(at))
    return false;
  char const* const begin = at;
  if (!skip_name(at))
    return false;
  std::string_view const name = between(begin, at);
  if (!skip_spaces(at) || name.find(':') != std::string_view::npos || is_predefined(name))
    return false;
  std::string replacement;
  if (!read_entity_value(at, replacement) || !skip_end(at))
    return false;
  all_entities.declare(name, replacement);
  return true;
}

// Behind "<!ATTLIST" (3.3, [52] AttlistDecl).
bool axsSubset::attribute_list(char const*& at)
{
  if (!skip_spaces(at))
    return false;
  char const* const begin = at;
  if (!skip_name(at))
    return false;
  std::string_view const element = between(begin, at);
  while (true)
  {
    bool const is_spaced = skip_spaces(at);
    if (skip_character(at, '>'))
      return true;
    // From here on the name is known to be whole.
    if (!is_spaced || !attribute(at, all_names.find(element)))
      return false;
  }
}

// 3.3, [53] AttDef
bool axsSubset::attribute(char const*& at, axsReadName& element)
{
  char const* const begin = at;
  if (!skip_name(at))
    return false;
  std::string_view const name = between(begin, at);
  axsAttributeList::Type type = axsAttributeList::Type::character_data;
  if (!skip_spaces(at) || !read_type(at, type) || !skip_spaces(at))
    return false;
  axsAttributeList& list = list_of(element);
  if (!list.add(all_names.find(name), type))
    return false;
  return skip(at, "#REQUIRED") || skip(at, "#IMPLIED") || default_value(at, list, type);
}

// Of [60] DefaultDecl what has a value.
bool axsSubset::default_value(char const*& at, axsAttributeList& list, axsAttributeList::Type type)
{
  if (skip(at, "#FIXED") && !skip_spaces(at))
    return false;
  std::string_view value;
  normal.clear();
  if (!axsAttributeValue::read(at, normal, value, nullptr))
    return false;
  if (type == axsAttributeList::Type::tokens)
  {
    // To Xerces-C, a tab or line end is white space here even where a reference stands for it.
    if (value.find_first_of("\t\n\r") != std::string_view::npos)
      return false;
    axsAttributeValue::collapse(normal, value);
  }
  list.set_default(value);
  return true;
}

axsAttributeList& axsSubset::list_of(axsReadName& element)
{
  if (element.attributes == nullptr)
  {
    declared.push_back(&element);
    element.attributes = &lists.emplace_back();
  }
  return *element.attributes;
}

void axsSubset::forget()
{
  for (axsReadName* const element : declared)
    element->attributes = nullptr;
  declared.clear();
  lists.clear();
}
