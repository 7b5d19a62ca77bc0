#include "axsDtdParser.h"

#include "axsContentModel.h"
#include "axsEntities.h"
#include "axsMessages.h"
#include "axsNameCache.h"
#include "axsSection.h"

#include <utility>

namespace
{
using namespace axsCharacters;

struct TypeName
{
  std::string_view name;
  axsAttributeType type;
};

TypeName const type_names[] = {{"CDATA", axsAttributeType::cdata}, {"ID", axsAttributeType::id},
  {"IDREF", axsAttributeType::idref}, {"IDREFS", axsAttributeType::idrefs}, {"ENTITY", axsAttributeType::entity},
  {"ENTITIES", axsAttributeType::entities}, {"NMTOKEN", axsAttributeType::nmtoken},
  {"NMTOKENS", axsAttributeType::nmtokens}, {"NOTATION", axsAttributeType::notation}};
}

axsDtdParser::axsDtdParser(axsInputStack& input, axsNameCache& names, axsEntities& entities)
  : in(input),
    all_names(names),
    all_entities(entities),
    reader(input, entities)
{
}

bool axsDtdParser::read_on()
{
  // In the document itself no declaration has references to parameter entities in it, so that one that is read again is
  // all that is to be forgotten; what it declared counts already.
  char const* const begin = in.at;
  bool const is_in_document = in.depth() == 0;
  try
  {
    return step();
  }
  catch (axsInputStack::NeedsMore const&)
  {
    if (is_in_document)
      in.at = begin;
    throw;
  }
}

bool axsDtdParser::step()
{
  if (state != State::begin && in.depth() > 0 && in.is_end(in.at))
    return end_input();
  char const* const begin = in.at;
  bool const is_in_document = in.depth() == 0;
  bool const is_end = state == State::end;
  axsEntity* referred = nullptr;
  reader.begin();
  if (state == State::begin)
    read_begin();
  else if (is_end)
    reader.end("the document type");
  else
    referred = read_subset();
  if (is_in_document)
    model->text.append(begin, in.at);
  if (referred != nullptr)
    in.open(*referred, item);
  return is_end && !open_external_subset();
}

void axsDtdParser::read_begin()
{
  reader.take("<!DOCTYPE");
  reader.need_spaces();
  model->name = reader.qualified_name(axsMessages::doctype_name);
  if (reader.spaces())
    reader.external_id(model->external, false);
  reader.spaces();
  state = reader.take("[") ? State::internal_subset : State::end;
}

// 2.8, [28b] intSubset and [31] extSubsetDecl: one part of it. Returns the parameter entity, if it is a reference to one.
axsEntity* axsDtdParser::read_subset()
{
  in.skip_spaces(in.at);
  item = in.at;
  if (in.is_end(in.at))
  {
    if (in.depth() == 0)
      reader.unexpected(axsMessages::subset_end);
    return nullptr;
  }
  if (reader.is_at('%'))
    return &all_entities.parameter(in, in.at);
  if (reader.is_at(']'))
    read_bracket();
  else
    read_declaration();
  return nullptr;
}

void axsDtdParser::read_declaration()
{
  if (reader.take("<!ELEMENT"))
    return read_element();
  if (reader.take("<!ATTLIST"))
    return read_attribute_list();
  if (reader.take("<!ENTITY"))
    return read_entity();
  if (reader.take("<!NOTATION"))
    return read_notation();
  if (reader.take("<!--"))
    return static_cast<void>(axsSection::read_comment(in, in.at, ignored));
  if (reader.take("<?"))
    return static_cast<void>(axsSection::read_instruction(in, in.at, ignored, false));
  if (reader.take("<!["))
    return read_condition();
  reader.unexpected(reader.take("<!") ? axsMessages::declaration_keyword : axsMessages::subset_markup);
}

// The end of the internal subset, or of a conditional section.
void axsDtdParser::read_bracket()
{
  if (in.depth() == 0)
  {
    ++in.at;
    state = State::end;
    return;
  }
  if (!reader.take("]]>"))
    reader.unexpected(axsMessages::subset_markup);
  if (sections.empty() || in.depth() < sections.back().begin || in.depth() > sections.back().bracket)
    in.fail(in.at, axsMessages::condition_extra);
  sections.pop_back();
}

// Whether it was the external subset that ended. WFC: PE Between Declarations (2.8) holds for it, too.
bool axsDtdParser::end_input()
{
  if (!sections.empty() && sections.back().begin == in.depth())
    reader.unexpected(axsMessages::condition_end);
  bool const is_external_subset = in.entity() == nullptr;
  in.close();
  return is_external_subset;
}

bool axsDtdParser::open_external_subset()
{
  state = State::external_subset;
  return in.open_subset(model->external.system_id);
}

// After "<![" (3.4, [61] conditionalSect)
void axsDtdParser::read_condition()
{
  if (in.depth() == 0)
    in.fail(in.at, axsMessages::condition_place);
  std::size_t const begin = in.depth();
  reader.spaces();
  bool const is_included = reader.take("INCLUDE");
  if (!is_included && !reader.take("IGNORE"))
    reader.unexpected(axsMessages::condition_keyword);
  reader.spaces();
  if (!reader.take("["))
    reader.unexpected(axsMessages::condition_keyword);
  if (is_included)
    sections.push_back({begin, in.depth()});
  else
    skip_ignored();
}

// 3.4, [64] ignoreSectContents
void axsDtdParser::skip_ignored()
{
  for (std::size_t open = 1; open > 0;)
  {
    char const* const from = in.at;
    in.at = end_of_text<apByteBlock, '<', ']', '\r'>(in.at);
    in.check_controls(from, in.at);
    if (reader.take("<!["))
      ++open;
    else if (reader.take("]]>"))
      --open;
    else if (in.is_end(in.at))
      reader.unexpected(axsMessages::condition_end);
    else if (reader.is_at('<') || reader.is_at(']'))
      ++in.at;
    else
      in.pass_special(in.at);
  }
}

// After "<!ELEMENT" (3.2, [45] elementdecl)
void axsDtdParser::read_element()
{
  reader.need_spaces();
  std::string const name = reader.qualified_name(axsMessages::element_declared);
  reader.need_spaces();
  std::string content = axsContentModel::read(reader);
  reader.end("an element");
  axsDtd::Element& element = model->element(name);
  if (element.content.empty())
    element.content = std::move(content);
}

// After "<!ATTLIST" (3.3, [52] AttlistDecl)
void axsDtdParser::read_attribute_list()
{
  reader.need_spaces();
  std::string const name = reader.qualified_name(axsMessages::element_declared);
  while (true)
  {
    bool const is_spaced = reader.spaces();
    if (reader.take(">"))
      return;
    if (!is_spaced)
      reader.unexpected(axsMessages::space_expected);
    read_attribute(model->element(name), all_names.find(name));
  }
}

// 3.3, [53] AttDef
void axsDtdParser::read_attribute(axsDtd::Element& element, axsQName& element_name)
{
  axsDtd::Attribute attribute;
  attribute.name = reader.qualified_name(axsMessages::attribute_declared);
  reader.need_spaces();
  attribute.type = read_type(attribute.tokens);
  reader.need_spaces();
  read_default(attribute);
  axsAttributeList& list = list_of(element_name);
  axsQName& name = all_names.find(attribute.name);
  if (!list.add(name, attribute.type))
    return;
  if (attribute.kind == axsDtd::Default::fixed || attribute.kind == axsDtd::Default::value)
    list.set_default(name, attribute.type, attribute.value);
  element.attributes.push_back(std::move(attribute));
}

// 3.3.1, [54] AttType
axsAttributeType axsDtdParser::read_type(std::vector<std::string>& tokens)
{
  if (reader.is_at('('))
  {
    read_group(tokens, false);
    return axsAttributeType::enumeration;
  }
  std::string const word = reader.name(axsMessages::attribute_type);
  for (TypeName const& type : type_names)
    if (type.name == word)
    {
      if (type.type == axsAttributeType::notation)
      {
        reader.need_spaces();
        read_group(tokens, true);
      }
      return type.type;
    }
  in.fail(in.at, axsMessages::attribute_type);
}

// Names or name tokens in parentheses ([58] NotationType, [59] Enumeration)
void axsDtdParser::read_group(std::vector<std::string>& tokens, bool are_names)
{
  if (!reader.take("("))
    reader.unexpected(axsMessages::group_token);
  do
  {
    reader.spaces();
    tokens.push_back(
      are_names ? reader.plain_name(axsMessages::group_token) : reader.name_token(axsMessages::group_token));
    reader.spaces();
  } while (reader.take("|"));
  if (!reader.take(")"))
    reader.unexpected(axsMessages::group_end);
}

// 3.3.2, [60] DefaultDecl
void axsDtdParser::read_default(axsDtd::Attribute& attribute)
{
  if (reader.take("#REQUIRED"))
  {
    attribute.kind = axsDtd::Default::required;
    return;
  }
  if (reader.take("#IMPLIED"))
    return;
  attribute.kind = axsDtd::Default::value;
  if (reader.take("#FIXED"))
  {
    attribute.kind = axsDtd::Default::fixed;
    reader.need_spaces();
  }
  if (!reader.is_at_quote())
    reader.unexpected(axsMessages::attribute_default);
  attribute.value = reader.attribute_value(attribute.name, attribute.type != axsAttributeType::cdata);
}

// After "<!ENTITY" (4.2, [70] EntityDecl)
void axsDtdParser::read_entity()
{
  reader.need_spaces();
  bool const is_parameter = reader.take("%");
  if (is_parameter)
    reader.need_spaces();
  std::string const name = reader.plain_name(axsMessages::entity_name);
  reader.need_spaces();
  axsDtd::Entity entity;
  if (reader.is_at_quote())
    entity.replacement = reader.entity_value();
  else
  {
    entity.is_internal = false;
    if (!reader.external_id(entity.external, false))
      reader.unexpected(axsMessages::entity_definition);
    bool const is_spaced = reader.spaces();
    // 4.2.2, [76] NDataDecl
    if (!is_parameter && is_spaced && reader.take("NDATA"))
    {
      reader.need_spaces();
      entity.notation = reader.plain_name(axsMessages::notation_name);
    }
  }
  reader.end("an entity");
  if (is_parameter)
    all_entities.declare_parameter(name, std::move(entity), in);
  else
    all_entities.declare_general(*model, name, std::move(entity), in);
}

// After "<!NOTATION" (4.7, [82] NotationDecl)
void axsDtdParser::read_notation()
{
  reader.need_spaces();
  std::string const name = reader.plain_name(axsMessages::notation_name);
  reader.need_spaces();
  axsDtd::Notation notation;
  if (!reader.external_id(notation.external, true))
    reader.unexpected(axsMessages::notation_definition);
  reader.end("a notation");
  model->notations.emplace(name, std::move(notation));
}

axsAttributeList& axsDtdParser::list_of(axsQName& element)
{
  if (element.attributes == nullptr)
    element.attributes = &lists.emplace_back();
  return *element.attributes;
}
