#include "axsElementReader.h"

#include "axsBuiltInTypes.h"
#include "axsSchemaConstraint.h"
#include "axsSchemaFlags.h"
#include "axsSchemaText.h"

#include <string>
#include <unordered_set>

namespace
{
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using Space = axsSchemaSymbol::Space;
using axsSchemaText::quoted;
}

axsElementReader::axsElementReader(axsSchemaContext& shared, axsSimpleTypeReader& types, axsIdentityReader& identities)
  : context(shared),
    simple_types(types),
    identity_constraints(identities)
{
}

void axsElementReader::fill(axsSchemaSymbol& symbol)
{
  axsElementDecl& decl = *symbol.element_decl;
  axsSchemaElement const& element = *symbol.element;
  axsSchemaElement const& schema = symbol.unit->document->root();
  decl.name = {std::string(symbol.name().name_space), std::string(symbol.name().local)};
  decl.is_global = true;
  decl.is_abstract = element.is_true(Field::abstract, false);
  decl.final_set = axsSchemaFlags::final_of(element, schema);
  if (element.has(Field::substitution_group))
    if (axsSchemaSymbol const* const head =
          context.symbols.resolve(Space::element, *symbol.unit, element, Field::substitution_group))
      decl.head = head->element_decl;
  fill(decl, *symbol.unit, element);
}

axsElementDecl const& axsElementReader::local(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsElementDecl& decl = context.store.elements.emplace_back();
  std::string_view const form =
    element.has(Field::form) ? element.value(Field::form) : unit.document->root().value(Field::element_form_default);
  decl.name.local = element.value(Field::name);
  if (form == "qualified")
    decl.name.name_space = unit.target;
  fill(decl, unit, element);
  return decl;
}

void axsElementReader::fill(axsElementDecl& decl, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  decl.type = type_of(unit, element);
  decl.is_nillable = element.is_true(Field::nillable, false);
  decl.block = axsSchemaFlags::block_of_element(element, unit.document->root());
  decl.constraint = axsSchemaConstraint::read(element);
  decl.place = element.place;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::unique || child->tag == Tag::key || child->tag == Tag::keyref)
      if (axsIdentityConstraint const* const made = identity_constraints.make(unit, *child))
        decl.identity_constraints.push_back(made);
  context.elements.push_back({&decl, &unit, &element});
}

// None where it is that of a head.
axsTypeDefinition axsElementReader::type_of(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsTypeDefinition type;
  if (axsSchemaElement const* const simple = element.child(Tag::simple_type))
    type.simple = &simple_types.anonymous(unit, *simple);
  else if (axsSchemaElement const* const complex = element.child(Tag::complex_type))
  {
    axsSchemaSymbol& made = context.symbols.anonymous(unit, *complex);
    made.complex_type = &context.store.complex_types.emplace_back();
    context.complex_types.push_back(&made);
    type.complex = made.complex_type;
  }
  else if (element.has(Field::type))
    type = named_type(unit, element);
  else if (!element.has(Field::substitution_group))
    type.complex = context.any_type;
  return type;
}

axsTypeDefinition axsElementReader::named_type(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsTypeDefinition type;
  type.complex = context.any_type;
  axsSchemaNameView name;
  axsSchemaPlace const place = element.place_of(Field::type);
  if (!context.symbols.expand(unit, element, element.value(Field::type), place, name))
    return type;
  bool const is_of_language = name.name_space == axsSchemaVocabulary::schema_namespace;
  if (is_of_language && name.local == "anyType")
    return type;
  axsSimpleType const* const built_in = is_of_language ? axsBuiltInTypes::find(name.local) : nullptr;
  if (built_in != nullptr)
    return {built_in, nullptr};
  axsSchemaSymbol* const symbol = context.symbols.resolve(Space::type, unit, element, name, place);
  if (symbol == nullptr)
    return type;
  if (symbol->is_complex_type())
    return {nullptr, symbol->complex_type};
  return {&simple_types.named(*symbol), nullptr};
}

void axsElementReader::take_types_of_heads()
{
  std::unordered_set<axsElementDecl const*> circular;
  std::vector<axsElementDecl*> chain;
  for (axsSchemaContext::Declared const& declared : context.elements)
  {
    chain.clear();
    axsElementDecl* at = declared.decl;
    // A chain that is longer than there are elements goes round.
    while (at != nullptr && !at->type && chain.size() <= context.elements.size())
    {
      chain.push_back(at);
      at = const_cast<axsElementDecl*>(at->head);
    }
    axsTypeDefinition type;
    type.complex = context.any_type;
    if (at != nullptr && at->type)
      type = at->type;
    for (axsElementDecl* const without : chain)
      without->type = type;
  }
}
