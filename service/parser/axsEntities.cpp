#include "axsEntities.h"

#include "axsCharacters.h"
#include "axsInputStack.h"
#include "axsMessages.h"

#include <utility>

namespace
{
using namespace axsCharacters;

axsEntity make(std::string const& name, axsDtd::Entity const& declared, axsInputStack const& input)
{
  axsEntity entity;
  entity.name = name;
  entity.declared = &declared;
  entity.base = input.file();
  entity.is_declared_outside = input.depth() > 0;
  return entity;
}

// What could be or become markup is not.
bool is_plain(std::string const& replacement)
{
  return replacement.find_first_of("<&]\r") == std::string::npos;
}

std::string_view read_name(axsInputStack const& input, char const*& p, char const* missing)
{
  char const* const begin = p;
  if (!skip_name(p))
    input.unexpected(p, missing);
  return {begin, static_cast<std::size_t>(p - begin)};
}
}

void axsEntities::declare_general(
  axsDtd& type, std::string const& name, axsDtd::Entity&& declared, axsInputStack const& input)
{
  auto const [place, is_new] = type.entities.try_emplace(name, std::move(declared));
  if (!is_new)
    return;
  axsEntity& entity = generals[place->first] = make(place->first, place->second, input);
  entity.is_plain = place->second.is_internal && is_plain(place->second.replacement);
}

void axsEntities::declare_parameter(std::string const& name, axsDtd::Entity&& declared, axsInputStack const& input)
{
  if (parameters.count(name) != 0)
    return;
  auto const& place = kept.emplace_back(name, std::move(declared));
  axsEntity& entity = parameters[place.first] = make(place.first, place.second, input);
  entity.is_parameter = true;
}

axsEntity& axsEntities::general(axsInputStack const& input, char const*& p)
{
  std::string_view const name = read_name(input, ++p, axsMessages::reference_name);
  if (!skip_character(p, ';'))
    input.unexpected(p, "the reference '&" + std::string(name) + "' is not ended by ';'; a plain '&' is written &amp;");
  auto const found = generals.find(name);
  // WFC: Entity Declared (4.1). What is not read may declare it, but to leave it out would lose content.
  if (found == generals.end())
    input.fail(p, "the entity " + axsMessages::quoted(name) + " is not declared");
  axsEntity& entity = found->second;
  bool const is_in_document = input.depth() == 0 || (input.entity() != nullptr && !input.entity()->is_parameter);
  if (is_standalone && entity.is_declared_outside && is_in_document)
    input.fail(p, "the entity " + axsMessages::quoted(name) +
                    " is not declared in the document itself, which says that it is standalone");
  // WFC: Parsed Entity (4.1)
  if (!entity.declared->notation.empty())
    input.fail(p, "the entity " + axsMessages::quoted(name) + " is not XML, and cannot be referred to here");
  return entity;
}

axsEntity& axsEntities::parameter(axsInputStack const& input, char const*& p)
{
  std::string_view const name = read_name(input, ++p, axsMessages::parameter_name);
  if (!skip_character(p, ';'))
    input.unexpected(p, "the reference '%" + std::string(name) + "' is not ended by ';'");
  auto const found = parameters.find(name);
  if (found == parameters.end())
    input.fail(p, "the parameter entity " + axsMessages::quoted(name) + " is not declared");
  return found->second;
}
