#include "axsIdentityReader.h"

#include "axsIdentityPathReader.h"
#include "axsSchemaText.h"

namespace
{
using Category = axsIdentityConstraint::Category;
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using Space = axsSchemaSymbol::Space;
using axsSchemaText::quoted;
}

axsIdentityConstraint const* axsIdentityReader::make(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsSchemaSymbol* const symbol = context.symbols.declare(Space::identity_constraint, unit, element);
  if (symbol == nullptr)
    return nullptr;
  axsIdentityConstraint& made = context.store.identity_constraints.emplace_back();
  symbol->identity_constraint = &made;
  made.name = {std::string(symbol->name().name_space), std::string(symbol->name().local)};
  made.place = element.place;
  made.category = element.tag == Tag::key      ? Category::key
                  : element.tag == Tag::keyref ? Category::keyref
                                               : Category::unique;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::selector)
      made.selector = axsIdentityPathReader(context, *child).read();
    else if (child->tag == Tag::field)
      made.fields.push_back(axsIdentityPathReader(context, *child).read());
  if (made.category == Category::keyref)
    references.push_back({&made, &unit, &element});
  return &made;
}

void axsIdentityReader::resolve_references()
{
  for (Reference const& reference : references)
  {
    axsSchemaSymbol const* const symbol =
      context.symbols.resolve(Space::identity_constraint, *reference.unit, *reference.element, Field::refer);
    if (symbol == nullptr || symbol->identity_constraint == nullptr)
      continue;
    axsIdentityConstraint const& key = *symbol->identity_constraint;
    axsSchemaPlace const place = reference.element->place_of(Field::refer);
    if (key.category == Category::keyref) // c-props-correct.1
      context.errors.add(place, quoted(key.name.local) + " is no key, but a reference to one");
    else if (key.fields.size() != reference.constraint->fields.size()) // c-props-correct.2
      context.errors.add(place, "the key " + quoted(key.name.local) + " has " + std::to_string(key.fields.size()) +
                                  " fields, the reference to it " +
                                  std::to_string(reference.constraint->fields.size()));
    else
      reference.constraint->referenced = &key;
  }
}
