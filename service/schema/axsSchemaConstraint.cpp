#include "axsSchemaConstraint.h"

#include "axsSchemaText.h"
#include "axsSchemaValueContext.h"
#include "axsSimpleType.h"

using Field = axsSchemaField;
using Kind = axsValueConstraint::Kind;

axsValueConstraint axsSchemaConstraint::read(axsSchemaElement const& element)
{
  axsValueConstraint made;
  if (axsSchemaAttributeText const* const fixed = element.find(Field::fixed))
  {
    made.kind = Kind::fixed;
    made.value = fixed->value;
  }
  else if (axsSchemaAttributeText const* const given = element.find(Field::default_value))
  {
    made.kind = Kind::default_value;
    made.value = given->value;
  }
  return made;
}

axsValueConstraint axsSchemaConstraint::read(
  axsSchemaContext& context, axsSchemaElement const& element, axsSimpleType const& type)
{
  axsValueConstraint made = read(element);
  if (made.kind != Kind::none)
    check(context, element, type, made);
  return made;
}

void axsSchemaConstraint::check(
  axsSchemaContext& context, axsSchemaElement const& element, axsSimpleType const& type, axsValueConstraint& constraint)
{
  bool const is_fixed = constraint.kind == Kind::fixed;
  axsSchemaPlace const place = element.place_of(is_fixed ? Field::fixed : Field::default_value);
  std::string const what = is_fixed ? "the fixed value" : "the default";
  if (type.role() == axsSimpleType::Role::id) // a-props-correct.3, e-props-correct.5
  {
    context.errors.add(place, what + " of " + axsSchemaText::quoted(element.name()) + " is not allowed for an ID");
    return;
  }
  axsSchemaValueContext const around(context.symbols, element.scope);
  axsValue value;
  if (type.check(constraint.value, around, &value))
    constraint.bytes = value.bytes();
  else
    context.errors.add(place, what + " is wrong: " + type.fault(constraint.value, around));
}
