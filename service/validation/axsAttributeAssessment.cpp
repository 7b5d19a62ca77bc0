#include "axsAttributeAssessment.h"

#include "axsAttributeDecl.h"
#include "axsBuiltInTypes.h"
#include "axsComplexType.h"
#include "axsName.h"
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

bool allows(axsWildcard const& wildcard, std::string_view name_space)
{
  using Spaces = axsWildcard::Namespaces;
  if (wildcard.kind == Spaces::any)
    return true;
  bool const is_listed =
    std::any_of(wildcard.spaces.begin(), wildcard.spaces.end(), [&](std::string const& s) { return s == name_space; });
  return wildcard.kind == Spaces::one_of ? is_listed : !is_listed && !name_space.empty();
}

}

bool axsAttributeAssessment::has_meaning(axsSimpleType const& type) noexcept
{
  return type.role() != axsSimpleType::Role::plain || type.variety() == axsSimpleType::Variety::list ||
         type.variety() == axsSimpleType::Variety::union_of;
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
  wild_ids = 0;
  added.clear();
  is_seen.assign(type.attributes.size(), 0);
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    if (is_exempt(attribute))
    {
      tell_identity(attribute);
      continue;
    }
    std::size_t const use = find_use(type, attribute);
    if (use == type.attributes.size())
    {
      assess_wild(attribute, type);
      continue;
    }
    is_seen[use] = 1;
    assess_use(attribute, type.attributes[use]);
  }
  add_missing(type);
}

void axsAttributeAssessment::assess_simple(axsStartTag const& tag)
{
  start = &tag;
  added.clear();
  for (axsTagAttribute const& attribute : *tag.attributes)
    if (!is_exempt(attribute))
      findings.report(
        "attribute '" + std::string(attribute.name->utf8()) + "' is not declared for element '" + element() + "'");
}

void axsAttributeAssessment::assess_lax(axsStartTag const& tag)
{
  start = &tag;
  added.clear();
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    axsAttributeDecl const* const decl =
      is_exempt(attribute) ? nullptr : findings.schema.attribute(attribute.name_space, attribute.name->local());
    if (decl == nullptr || decl->type == nullptr)
      tell_identity(attribute);
    else
      check_value(attribute, *decl->type, decl->constraint.kind == Kind::fixed ? &decl->constraint.bytes : nullptr,
        decl->constraint.value);
  }
}

void axsAttributeAssessment::skip(axsStartTag const& tag)
{
  start = &tag;
  added.clear();
  for (axsTagAttribute const& attribute : *tag.attributes)
    tell_identity(attribute);
}

std::size_t axsAttributeAssessment::find_use(axsComplexType const& type, axsTagAttribute const& attribute)
{
  std::size_t const found = type.attributes.find(attribute.name_space, attribute.name->local());
  return found == axsAttributeUses::none ? type.attributes.size() : found;
}

// cvc-attribute, cvc-au
void axsAttributeAssessment::assess_use(axsTagAttribute const& attribute, axsAttributeUse const& use)
{
  if (use.decl->type == nullptr)
    return;
  axsValueConstraint const& constraint = constraint_of(use);
  check_value(
    attribute, *use.decl->type, constraint.kind == Kind::fixed ? &constraint.bytes : nullptr, constraint.value);
}

// cvc-complex-type.3.2, cvc-wildcard
void axsAttributeAssessment::assess_wild(axsTagAttribute const& attribute, axsComplexType const& type)
{
  std::string const name(attribute.name->utf8());
  if (!type.attribute_wildcard || !allows(*type.attribute_wildcard, attribute.name_space))
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
  if (decl->type == nullptr)
    return;
  check_value(attribute, *decl->type, decl->constraint.kind == Kind::fixed ? &decl->constraint.bytes : nullptr,
    decl->constraint.value);
  // cvc-complex-type.5: beside an ID that is declared, or another such one, none may come in.
  bool const is_id = decl->type->role() == axsSimpleType::Role::id;
  auto const is_id_use = [](axsAttributeUse const& use)
  { return use.decl->type != nullptr && use.decl->type->role() == axsSimpleType::Role::id; };
  if (is_id && (++wild_ids > 1 || std::any_of(type.attributes.begin(), type.attributes.end(), is_id_use)))
    findings.report("attribute '" + name + "' of element '" + element() + "' is an ID beside another one");
}

bool axsAttributeAssessment::check_value(
  axsTagAttribute const& attribute, axsSimpleType const& type, std::string const* fixed, std::string const& shown_fixed)
{
  findings.has_assessed = true;
  bool const is_field = findings.identity.is_active() && findings.identity.wants_attributes();
  bool const wants_value = fixed != nullptr || is_field || has_meaning(type);
  findings.value.clear();
  if (!type.check(attribute.value, findings.context, wants_value ? &findings.value : nullptr))
  {
    findings.report(subject(attribute) + type.fault(attribute.value, findings.context));
    if (is_field)
      findings.identity.attribute(attribute.name_space, attribute.name->local(), {attribute.value, {}});
    return false;
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
  return true;
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

// cvc-complex-type.4; and the attributes with defaults (3.4.5, attribute default).
void axsAttributeAssessment::add_missing(axsComplexType const& type)
{
  for (std::size_t i = 0; i < is_seen.size(); ++i)
  {
    axsAttributeUse const& use = type.attributes[i];
    if (is_seen[i] != 0)
      continue;
    axsValueConstraint const& constraint = constraint_of(use);
    if (use.is_required)
      findings.report("element '" + element() + "': missing required attribute '" + use.decl->name.local + "'");
    else if (constraint.kind != Kind::none)
    {
      added.push_back(&use);
      add_references(use, constraint.value);
      if (findings.identity.is_active() && findings.identity.wants_attributes())
        findings.identity.attribute(
          use.decl->name.name_space, use.decl->name.local, {constraint.value, constraint.bytes});
    }
  }
}

// A default may refer to IDs (cvc-id); it cannot be one.
void axsAttributeAssessment::add_references(axsAttributeUse const& use, std::string const& value)
{
  if (use.decl->type == nullptr || !has_meaning(*use.decl->type))
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
