#include "axsRedefinitionCheck.h"

#include "axsComplexTypeCheck.h"
#include "axsGroupCheck.h"
#include "axsSchemaText.h"
#include "axsSimpleType.h"

#include <string>
#include <vector>

namespace
{
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using axsSchemaText::quoted;

// The references by the element to what has its own name.
std::vector<axsSchemaElement const*> own_references(axsSchemaSymbol const& symbol)
{
  std::vector<axsSchemaElement const*> found;
  axsSchemaElement const* at = symbol.element;
  while (at != nullptr)
  {
    std::string_view const reference = at->value(Field::ref);
    bool const is_own =
      at->tag == symbol.element->tag && at != symbol.element && axsSchemaText::local(reference) == symbol.name().local;
    std::optional<std::string_view> const bound =
      is_own ? at->scope->find(axsSchemaText::prefix(reference)) : std::nullopt;
    if (bound.has_value() && (*bound == symbol.unit->target || (bound->empty() && symbol.unit->is_chameleon)))
      found.push_back(at);
    if (at->first_child != nullptr)
    {
      at = at->first_child;
      continue;
    }
    while (at != symbol.element && at->next == nullptr)
      at = at->parent;
    at = at == symbol.element ? nullptr : at->next;
  }
  return found;
}

bool occurs_once(axsSchemaElement const& reference)
{
  return (!reference.has(Field::min_occurs) || axsSchemaText::count(reference.value(Field::min_occurs)) == 1) &&
         (!reference.has(Field::max_occurs) || axsSchemaText::count(reference.value(Field::max_occurs)) == 1);
}
}

axsRedefinitionCheck::axsRedefinitionCheck(
  axsSchemaContext& shared, axsGroupCheck& checked_groups, axsComplexTypeCheck& types)
  : context(shared),
    groups(checked_groups),
    complex_types(types)
{
}

void axsRedefinitionCheck::check(axsSchemaSymbol const& symbol)
{
  switch (symbol.element->tag)
  {
  case Tag::simple_type:
  case Tag::complex_type:
    return check_type(symbol);
  case Tag::group:
    return check_group(symbol);
  default:
    return check_attribute_group(symbol);
  }
}

// src-redefine.5.
void axsRedefinitionCheck::check_type(axsSchemaSymbol const& symbol)
{
  axsSchemaSymbol const& redefined = *symbol.redefined;
  bool const is_derived = symbol.complex_type != nullptr
                            ? symbol.complex_type->base.complex == redefined.complex_type
                            : symbol.simple_type->variety() != axsSimpleType::Variety::ur &&
                                symbol.simple_type->base() == redefined.simple_type;
  if (!is_derived)
    context.errors.add(symbol.element->place,
      "the type " + quoted(symbol.name().local) + " is redefined, so it must be derived from itself");
}

// src-redefine.6.
void axsRedefinitionCheck::check_group(axsSchemaSymbol const& symbol)
{
  std::vector<axsSchemaElement const*> const references = own_references(symbol);
  std::string const name = quoted(symbol.name().local);
  if (references.size() > 1)
    context.errors.add(references[1]->place, "the group " + name + " is redefined; it may refer to itself once only");
  else if (references.empty())
    groups.check_restriction(symbol);
  else if (!occurs_once(*references.front()))
    context.errors.add(references.front()->place,
      "the group " + name + " is redefined; in it, minOccurs and maxOccurs of its reference to itself must be 1");
}

// src-redefine.7.
void axsRedefinitionCheck::check_attribute_group(axsSchemaSymbol const& symbol)
{
  std::vector<axsSchemaElement const*> const references = own_references(symbol);
  if (references.size() > 1)
    context.errors.add(references[1]->place,
      "the attribute group " + quoted(symbol.name().local) + " is redefined; it may refer to itself once only");
  else if (references.empty())
    complex_types.check_attributes(symbol.attributes.uses, symbol.attributes.wildcard,
      symbol.redefined->attributes.uses, symbol.redefined->attributes.wildcard, symbol.element->place);
}
