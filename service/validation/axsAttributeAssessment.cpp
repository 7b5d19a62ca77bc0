#include "axsAttributeAssessment.h"

#include "axsAttributeDecl.h"
#include "axsBuiltInTypes.h"
#include "axsComplexType.h"
#include "axsName.h"
#include "axsNamespaceConstraint.h"
#include "axsShownText.h"
#include "axsSimpleType.h"
#include "axsWildcard.h"

#include <algorithm>

namespace
{
using Kind = axsValueConstraint::Kind;

// That of the use where both have one (Part 1, 3.5.4 cvc-au).
axsValueConstraint const& constraint_of(axsAttributeUse const& use) noexcept
{
  return use.constraint.kind != Kind::none ? use.constraint : use.decl->constraint;
}
}

bool axsAttributeAssessment::is_exempt(axsTagAttribute const& attribute) noexcept
{
  if (attribute.is_declaration)
    return true;
  if (attribute.name_space != xsi)
    return false;
  std::string_view const local = attribute.name->local();
  return local == "type" || local == "nil" || local == "schemaLocation" || local == "noNamespaceSchemaLocation";
}

void axsAttributeAssessment::assess(axsStartTag const& tag, axsComplexType const& type)
{
  start = &tag;
  Known& known = known_of(type);
  if (!assess_usual(known))
    assess_each(type, known);
}

axsAttributeAssessment::Known& axsAttributeAssessment::known_of(axsComplexType const& type)
{
  if (type.number >= known_types.size())
    known_types.resize(type.number + std::size_t{1});
  Known& known = known_types[type.number];
  if (known.is_looked_up)
    return known;
  std::size_t number = 0;
  for (axsAttributeUse const& use : type.attributes)
  {
    if (use.is_required || constraint_of(use).kind != Kind::none)
      known.awaited.push_back(number);
    ++number;
  }
  known.is_looked_up = true;
  return known;
}

// Whether the element has exactly these attributes.
bool axsAttributeAssessment::assess_usual(Known const& known)
{
  std::vector<Usual> const& usual = known.usual;
  std::vector<axsTagAttribute> const& attributes = *start->attributes;
  if (!known.has_usual || usual.size() != attributes.size())
    return false;
  for (std::size_t i = 0; i < usual.size(); ++i)
    if (attributes[i].name != usual[i].name || attributes[i].name_space != usual[i].use->decl->name.name_space)
      return false;
  for (std::size_t i = 0; i < usual.size(); ++i)
    assess_use(attributes[i], *usual[i].use);
  return true;
}

void axsAttributeAssessment::assess_each(axsComplexType const& type, Known& known)
{
  known.usual.clear();
  wild_ids = 0;
  is_seen.assign(type.attributes.size(), 0);
  for (axsTagAttribute const& attribute : *start->attributes)
  {
    if (is_exempt(attribute))
    {
      tell_identity(attribute);
      continue;
    }
    std::size_t const number = type.attributes.find(attribute.name_space, attribute.name->local());
    if (number == axsAttributeUses::none)
    {
      assess_wild(attribute, type);
      continue;
    }
    is_seen[number] = 1;
    axsAttributeUse const& use = type.attributes[number];
    known.usual.push_back({attribute.name, &use});
    assess_use(attribute, use);
  }
  bool const is_any_missing = add_missing(type, known);
  known.has_usual = !is_any_missing && known.usual.size() == start->attributes->size();
}

void axsAttributeAssessment::assess_simple(axsStartTag const& tag)
{
  start = &tag;
  for (axsTagAttribute const& attribute : *tag.attributes)
    if (!is_exempt(attribute))
      findings.report(
        "attribute '" + std::string(attribute.name->utf8()) + "' is not declared for element '" + element() + "'");
}

void axsAttributeAssessment::assess_lax(axsStartTag const& tag)
{
  start = &tag;
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    axsAttributeDecl const* const decl =
      is_exempt(attribute) ? nullptr : findings.schema.attribute(attribute.name_space, attribute.name->local());
    if (decl == nullptr)
      tell_identity(attribute);
    else
      check_value(attribute, *decl->type, decl->constraint.kind == Kind::fixed ? &decl->constraint.bytes : nullptr,
        decl->constraint.value);
  }
}

void axsAttributeAssessment::skip(axsStartTag const& tag)
{
  start = &tag;
  for (axsTagAttribute const& attribute : *tag.attributes)
    tell_identity(attribute);
}

// cvc-attribute, cvc-au
void axsAttributeAssessment::assess_use(axsTagAttribute const& attribute, axsAttributeUse const& use)
{
  axsValueConstraint const& constraint = constraint_of(use);
  check_value(
    attribute, *use.decl->type, constraint.kind == Kind::fixed ? &constraint.bytes : nullptr, constraint.value);
}

// cvc-complex-type.3.2, cvc-wildcard
void axsAttributeAssessment::assess_wild(axsTagAttribute const& attribute, axsComplexType const& type)
{
  std::string const name(attribute.name->utf8());
  if (!type.attribute_wildcard || !axsNamespaceConstraint::allows(*type.attribute_wildcard, attribute.name_space))
    return findings.report("attribute '" + name + "' is not declared for element '" + element() + "'");
  axsWildcard const& wildcard = *type.attribute_wildcard;
  if (wildcard.process == axsWildcard::Process::skip)
    return tell_identity(attribute);
  axsAttributeDecl const* const decl = findings.schema.attribute(attribute.name_space, attribute.name->local());
  if (decl == nullptr)
  {
    if (wildcard.process == axsWildcard::Process::strict)
      findings.report(
        "attribute '" + name + "' of element '" + element() + "' must be declared in the schema, and is not");
    return tell_identity(attribute);
  }
  check_value(attribute, *decl->type, decl->constraint.kind == Kind::fixed ? &decl->constraint.bytes : nullptr,
    decl->constraint.value);
  // cvc-complex-type.5: beside an ID that is declared, or another such one, none may come in.
  bool const is_id = decl->type->role() == axsSimpleType::Role::id;
  auto const is_id_use = [](axsAttributeUse const& use) { return use.decl->type->role() == axsSimpleType::Role::id; };
  if (is_id && (++wild_ids > 1 || std::any_of(type.attributes.begin(), type.attributes.end(), is_id_use)))
    findings.report("attribute '" + name + "' of element '" + element() + "' is an ID beside another one");
}

void axsAttributeAssessment::check_value(
  axsTagAttribute const& attribute, axsSimpleType const& type, std::string const* fixed, std::string const& shown_fixed)
{
  findings.has_assessed = true;
  bool const is_field = findings.identity.is_active() && findings.identity.wants_attributes();
  bool const wants_value = fixed != nullptr || is_field || type.has_references();
  if (!type.check(attribute.value, findings.context, wants_value ? &findings.value : nullptr))
  {
    findings.report(subject(attribute) + type.fault(attribute.value, findings.context));
    if (is_field)
      findings.identity.attribute(attribute.name_space, attribute.name->local(), {attribute.value, {}});
    return;
  }
  if (fixed != nullptr && findings.value.bytes() != *fixed)
    findings.report(subject(attribute) + "\"" + axsShownText::shortened(attribute.value) +
                    "\" is not allowed: it must be \"" + axsShownText::shortened(shown_fixed) + "\"");
  if (wants_value && !findings.value.identifiers().empty())
    if (std::string const wrong = findings.identifiers.add(findings.value, findings.locator->end()); !wrong.empty())
      findings.report(subject(attribute) + wrong);
  if (is_field)
    findings.identity.attribute(
      attribute.name_space, attribute.name->local(), {attribute.value, findings.value.bytes()});
}

// An attribute of which no type is known is a text (Part 1, 3.2.7).
void axsAttributeAssessment::tell_identity(axsTagAttribute const& attribute)
{
  if (attribute.is_declaration || !findings.identity.is_active() || !findings.identity.wants_attributes())
    return;
  findings.value.clear();
  axsBuiltInTypes::any_simple_type().check(attribute.value, findings.context, &findings.value);
  findings.identity.attribute(attribute.name_space, attribute.name->local(), {attribute.value, findings.value.bytes()});
}

// cvc-complex-type.4; and the attributes with defaults (3.4.5, attribute default). Whether any of either are missing.
bool axsAttributeAssessment::add_missing(axsComplexType const& type, Known const& known)
{
  bool is_any_missing = false;
  for (std::size_t const number : known.awaited)
  {
    if (is_seen[number] != 0)
      continue;
    is_any_missing = true;
    axsAttributeUse const& use = type.attributes[number];
    if (use.is_required)
      findings.report("element '" + element() + "': missing required attribute '" + use.decl->name.local + "'");
    else
      add_default(use);
  }
  return is_any_missing;
}

void axsAttributeAssessment::add_default(axsAttributeUse const& use)
{
  axsValueConstraint const& constraint = constraint_of(use);
  add_references(use, constraint.value);
  if (findings.identity.is_active() && findings.identity.wants_attributes())
    findings.identity.attribute(use.decl->name.name_space, use.decl->name.local, {constraint.value, constraint.bytes});
}

// A default may refer to IDs (cvc-id); it cannot be one.
void axsAttributeAssessment::add_references(axsAttributeUse const& use, std::string const& value)
{
  if (!use.decl->type->has_references())
    return;
  findings.value.clear();
  if (use.decl->type->check(value, findings.context, &findings.value) && !findings.value.identifiers().empty())
    findings.identifiers.add(findings.value, findings.locator->end());
}

std::string axsAttributeAssessment::subject(axsTagAttribute const& attribute) const
{
  return "attribute '" + std::string(attribute.name->utf8()) + "' of element '" + element() + "': ";
}

std::string axsAttributeAssessment::element() const
{
  return std::string(start->name->local());
}
