#include "axsSchemaSymbols.h"

#include "axsSchemaText.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <vector>

namespace
{
using Space = axsSchemaSymbol::Space;
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using axsSchemaText::quoted;

std::optional<Space> space_of(Tag tag)
{
  switch (tag)
  {
  case Tag::simple_type:
  case Tag::complex_type:
    return Space::type;
  case Tag::element:
    return Space::element;
  case Tag::attribute:
    return Space::attribute;
  case Tag::group:
    return Space::group;
  case Tag::attribute_group:
    return Space::attribute_group;
  case Tag::notation:
    return Space::notation;
  default:
    return std::nullopt;
  }
}

std::string first_place(axsSchemaPlace first, axsSchemaPlace second)
{
  if (first.line == 0)
    return {};
  return "; first at line " + std::to_string(first.line) + (first.file == second.file ? "" : " of another file");
}

// The definition at the top of the document, or in a redefinition there, that an element belongs to.
axsSchemaElement const& definition_around(axsSchemaElement const& element)
{
  axsSchemaElement const* at = &element;
  while (at->parent != nullptr && at->parent->tag != Tag::schema && at->parent->tag != Tag::redefine)
    at = at->parent;
  return *at;
}

// Whether the element is the xs:restriction or xs:extension that makes the type.
bool is_derivation_of(axsSchemaElement const& element, axsSchemaElement const& type)
{
  bool const is_derivation = element.tag == Tag::restriction || element.tag == Tag::extension;
  bool const is_content = element.parent->tag == Tag::simple_content || element.parent->tag == Tag::complex_content;
  return is_derivation && (is_content ? element.parent->parent : element.parent) == &type;
}

// Whether a unit takes in another one.
bool reaches(axsSchemaUnit const& from, axsSchemaUnit const& wanted)
{
  std::vector<axsSchemaUnit const*> open{&from};
  std::unordered_set<axsSchemaUnit const*> seen{&from};
  while (!open.empty())
  {
    axsSchemaUnit const* const unit = open.back();
    open.pop_back();
    if (unit == &wanted)
      return true;
    for (axsSchemaUnit const* const next : unit->included)
      if (seen.insert(next).second)
        open.push_back(next);
  }
  return false;
}
}

axsSchemaSymbols::axsSchemaSymbols(axsSchemaErrors& told) : errors(told) {}

void axsSchemaSymbols::declare(axsSchemaUnit const& unit)
{
  targets.insert(unit.target);
  for (axsSchemaElement const* child = unit.document->root().first_child; child != nullptr; child = child->next)
    if (std::optional<Space> const space = space_of(child->tag))
      declare(*space, unit, *child);
}

axsSchemaSymbol* axsSchemaSymbols::declare(Space space, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsSchemaSymbol& made = anonymous(unit, element);
  auto const [known, is_new] = table(space).emplace(made.name(), &made);
  if (is_new)
    return &made;
  errors.add(element.place_of(Field::name), quoted(element.value(Field::name)) + " is declared more than once" +
                                              first_place(known->second->element->place, element.place));
  return nullptr;
}

axsSchemaSymbol& axsSchemaSymbols::anonymous(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsSchemaSymbol& made = symbols.emplace_back();
  made.unit = &unit;
  made.element = &element;
  return made;
}

void axsSchemaSymbols::redefine(axsSchemaUnit const& unit)
{
  for (axsSchemaUnit::Redefinition const& redefinition : unit.redefinitions)
    for (axsSchemaElement const* child = redefinition.element->first_child; child != nullptr; child = child->next)
      if (space_of(child->tag).has_value())
        replace(unit, *redefinition.redefined, *child);
}

// src-expredef.
void axsSchemaSymbols::replace(
  axsSchemaUnit const& unit, axsSchemaUnit const& redefined, axsSchemaElement const& definition)
{
  axsSchemaSymbol& made = anonymous(unit, definition);
  axsSchemaSymbol*& known = table(*space_of(definition.tag))[made.name()];
  bool const is_of_unit = known != nullptr && known->unit == &unit;
  if (is_of_unit && known->redefined != nullptr)
  {
    errors.add(definition.place, quoted(definition.value(Field::name)) + " is redefined more than once");
    return;
  }
  bool const is_there =
    known != nullptr && !is_of_unit && known->element->tag == definition.tag && reaches(redefined, *known->unit);
  if (!is_there)
  {
    errors.add(definition.place, quoted(definition.value(Field::name)) + " is redefined, but not defined in the schema "
                                                                         "that is redefined");
    known = known == nullptr ? &made : known;
    return;
  }
  made.redefined = known;
  known = &made;
}

bool axsSchemaSymbols::expand(axsSchemaUnit const& unit, axsSchemaElement const& element, std::string_view qname,
  axsSchemaPlace place, axsSchemaNameView& name)
{
  std::string_view const prefix = axsSchemaText::prefix(qname);
  std::optional<std::string_view> const bound = element.scope->find(prefix);
  if (!bound.has_value())
  {
    errors.add(place, "the prefix " + quoted(prefix) + " is not declared");
    return false;
  }
  name.local = axsSchemaText::local(qname);
  name.name_space = *bound;
  // What has no namespace in a document that is included into one that has, gets that (4.2.1).
  if (bound->empty() && unit.is_chameleon)
    name.name_space = unit.target;
  return true;
}

axsSchemaSymbol* axsSchemaSymbols::resolve(
  Space space, axsSchemaUnit const& unit, axsSchemaElement const& element, Field field)
{
  axsSchemaNameView name;
  axsSchemaPlace const place = element.place_of(field);
  if (!expand(unit, element, element.value(field), place, name))
    return nullptr;
  return resolve(space, unit, element, name, place);
}

axsSchemaSymbol* axsSchemaSymbols::resolve(Space space, axsSchemaUnit const& unit, axsSchemaElement const& element,
  axsSchemaNameView const& name, axsSchemaPlace place)
{
  if (!unit.sees(name.name_space)) // src-resolve.4
  {
    bool const is_of_language = name.name_space == axsSchemaVocabulary::schema_namespace;
    if (is_of_language)
      errors.add(place, "there is no declaration of " + words(name));
    else
      errors.add(place, "there is no declaration of " + words(name) + ": the schema does not import " +
                          (name.name_space.empty() ? "what is in no namespace" : "that namespace"));
    return nullptr;
  }
  if (!unit.redefinitions.empty())
    if (axsSchemaSymbol* const original = redefined_here(unit, element, space, name))
      return original;
  axsSchemaSymbol* const found = find(space, name);
  if (found == nullptr) // src-resolve.1
    tell_unknown(unit, name, place);
  return found;
}

// Where nothing is known of a namespace, it is the import that is to be mended, not each of the names.
void axsSchemaSymbols::tell_unknown(axsSchemaUnit const& unit, axsSchemaNameView const& name, axsSchemaPlace place)
{
  std::string const message = "there is no declaration of " + words(name);
  axsSchemaUnit::Import const* const import = unit.import_of(name.name_space);
  bool const is_unread = import != nullptr && !import->unread.empty() && targets.count(name.name_space) == 0;
  if (!is_unread)
    errors.add(place, message);
  else if (told_imports.insert(import).second)
    errors.add(place, message + ": " + import->unread);
}

// What a definition in xs:redefine refers to by its own name: what it redefines (src-redefine.5 to 7).
axsSchemaSymbol* axsSchemaSymbols::redefined_here(
  axsSchemaUnit const& unit, axsSchemaElement const& from, Space space, axsSchemaNameView const& name)
{
  axsSchemaElement const& definition = definition_around(from);
  if (definition.parent == nullptr || definition.parent->tag != Tag::redefine || space_of(definition.tag) != space)
    return nullptr;
  if (definition.value(Field::name) != name.local || name.name_space != unit.target)
    return nullptr;
  // Of a type, only its base is what it redefines; an element in it may be of the new type.
  if (space == Space::type && !is_derivation_of(from, definition))
    return nullptr;
  for (axsSchemaSymbol* at = find(space, name); at != nullptr; at = at->redefined)
    if (at->element == &definition && at->unit == &unit)
      return at->redefined;
  return nullptr;
}

axsSchemaSymbol* axsSchemaSymbols::find(Space space, axsSchemaNameView const& name) noexcept
{
  auto const found = table(space).find(name);
  return found == table(space).end() ? nullptr : found->second;
}

std::string axsSchemaSymbols::words(axsSchemaNameView const& name)
{
  return quoted(name.local) +
         (name.name_space.empty() ? std::string(" in no namespace") : " in the namespace " + quoted(name.name_space));
}
