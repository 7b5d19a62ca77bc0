#include "axsElementCheck.h"

#include "axsGroupCheck.h"
#include "axsSchemaConstraint.h"
#include "axsSchemaText.h"
#include "axsTypeDerivation.h"

#include <unordered_map>
#include <vector>

namespace
{
using Content = axsComplexType::Content;
using Field = axsSchemaField;
using axsSchemaText::quoted;

// The type of its text, if that is all that it may contain.
axsSimpleType const* simple_type_of(axsElementDecl const& decl)
{
  axsComplexType const* const complex = decl.type.complex;
  if (complex == nullptr)
    return decl.type.simple;
  return complex->content == Content::simple ? complex->simple_content : nullptr;
}
}

axsElementCheck::axsElementCheck(axsSchemaContext& shared, axsGroupCheck& checked_groups)
  : context(shared),
    groups(checked_groups)
{
}

bool axsElementCheck::check_circles()
{
  bool is_right = true;
  // By the element from which it was come to first.
  std::unordered_map<axsElementDecl const*, axsElementDecl const*> seen;
  for (axsSchemaContext::Declared const& declared : context.elements)
  {
    axsElementDecl const* at = declared.decl;
    while (at != nullptr && seen.emplace(at, declared.decl).second)
      at = at->head;
    if (at == nullptr || seen.at(at) != declared.decl)
      continue;
    context.errors.add(at->place, quoted(at->name.local) + " is in its own substitution group");
    is_right = false;
  }
  return is_right;
}

void axsElementCheck::check(axsSchemaContext::Declared const& declared)
{
  axsElementDecl const& decl = *declared.decl;
  if (decl.constraint.kind != axsValueConstraint::Kind::none)
    check_constraint(declared);
  if (axsSimpleType const* const type = simple_type_of(decl); type != nullptr && type->lacks_notations())
    context.errors.add(decl.place, axsSchemaText::lacks_notations("element", decl.name.local));
  if (decl.head != nullptr && !axsTypeDerivation::is_derived(decl.type, decl.head->type, decl.head->final_set))
    context.errors.add(declared.element->place_of(Field::substitution_group), // e-props-correct.4
      "the type of " + quoted(decl.name.local) + " is not derived from that of " + quoted(decl.head->name.local) +
        ", the head of its substitution group, in a way that this allows");
}

// e-props-correct.2, cos-valid-default.
void axsElementCheck::check_constraint(axsSchemaContext::Declared const& declared)
{
  axsElementDecl& decl = *declared.decl;
  if (axsSimpleType const* const type = simple_type_of(decl))
    return axsSchemaConstraint::check(context, *declared.element, *type, decl.constraint);
  axsComplexType const* const complex = decl.type.complex;
  bool const may_be_text =
    complex->content == Content::mixed && (!complex->particle.has_value() || groups.is_emptiable(*complex->particle));
  if (may_be_text)
    decl.constraint.bytes = decl.constraint.value;
  else
    context.errors.add(declared.element->place,
      "the element " + quoted(decl.name.local) + " has a default or fixed value, but its type allows no text only");
}
