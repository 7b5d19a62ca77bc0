#include "axsComplexTypeCheck.h"

#include "axsGroupCheck.h"
#include "axsNamespaceConstraint.h"
#include "axsSchemaText.h"
#include "axsSimpleType.h"
#include "axsTypeDerivation.h"

#include <string>

namespace
{
using Content = axsComplexType::Content;
using axsSchemaText::quoted;

int strength(axsWildcard::Process process)
{
  return process == axsWildcard::Process::strict ? 2 : process == axsWildcard::Process::lax ? 1 : 0;
}
}

axsComplexTypeCheck::axsComplexTypeCheck(axsSchemaContext& shared, axsGroupCheck& checked_groups)
  : context(shared),
    groups(checked_groups)
{
}

void axsComplexTypeCheck::check(axsComplexType const& type)
{
  check_ids(type);
  if (type.derivation == axsDerivationExtension)
    check_extension(type);
  else
    check_restriction(type);
}

// ct-props-correct.5. What an extension inherits has been looked at, unless there is one ID of its own.
void axsComplexTypeCheck::check_ids(axsComplexType const& type)
{
  bool const inherits = type.derivation == axsDerivationExtension && type.base.complex != nullptr;
  std::size_t const own = inherits ? type.base.complex->attributes.size() : 0;
  axsAttributeUse const* first = nullptr;
  for (std::size_t i = own; i < type.attributes.size(); ++i)
    first = other_id(type, i, first);
  for (std::size_t i = 0; first != nullptr && i < own; ++i)
    first = other_id(type, i, first);
}

// The use with that number if it is an ID and `first` is null; another one beside `first` is told of.
axsAttributeUse const* axsComplexTypeCheck::other_id(
  axsComplexType const& type, std::size_t number, axsAttributeUse const* first)
{
  axsAttributeUse const& use = type.attributes[number];
  if (use.decl->type->role() != axsSimpleType::Role::id)
    return first;
  if (first != nullptr)
    context.errors.add(type.place, "the attributes " + quoted(first->decl->name.local) + " and " +
                                     quoted(use.decl->name.local) +
                                     " are both of the type xs:ID; a type may have one such attribute");
  return first == nullptr ? &use : first;
}

// cos-ct-extends.
void axsComplexTypeCheck::check_extension(axsComplexType const& type)
{
  std::string const base_words = axsTypeDerivation::words(type.base);
  bool const is_final = type.base.simple != nullptr ? (type.base.simple->final_set() & axsDerivationExtension) != 0
                                                    : (type.base.complex->final_set & axsDerivationExtension) != 0;
  if (is_final) // cos-ct-extends.1.1, 2.2
    context.errors.add(type.place, "the type " + base_words + " may not be extended: it is final");
  if (type.base.simple != nullptr)
    return;
  axsComplexType const& base = *type.base.complex;
  bool const is_same = type.content == base.content;
  bool const extends_elements = type.has_element_content() && (base.content == Content::empty || is_same);
  if (!is_same && !extends_elements) // cos-ct-extends.1.4
    context.errors.add(type.place,
      "the content cannot extend that of " + base_words + ": both must be mixed, or both consist of elements only");
}

// derivation-ok-restriction.
void axsComplexTypeCheck::check_restriction(axsComplexType const& type)
{
  axsComplexType const* const base = type.base.complex;
  if (base == nullptr)
    return;                                              // told of where the content was made
  if ((base->final_set & axsDerivationRestriction) != 0) // derivation-ok-restriction.1
    context.errors.add(
      type.place, "the type " + axsTypeDerivation::words(type.base) + " may not be restricted: it is final");
  if (base == context.any_type)
    return;
  if (type.attributes.is_shared_with(base->attributes))
    check_attributes({}, type.attribute_wildcard, {}, base->attribute_wildcard, type.place);
  else
    check_attributes(type.attributes, type.attribute_wildcard, base->attributes, base->attribute_wildcard, type.place);
  check_restricted_content(type, *base);
}

void axsComplexTypeCheck::check_attributes(axsAttributeUses const& uses, std::optional<axsWildcard> const& wildcard,
  axsAttributeUses const& base_uses, std::optional<axsWildcard> const& base_wildcard, axsSchemaPlace place)
{
  for (axsAttributeUse const& use : base_uses)
  {
    std::size_t const own = uses.find(use.decl->name.name_space, use.decl->name.local);
    if (own != axsAttributeUses::none)
      check_use(uses[own], use);
    else if (use.is_required) // derivation-ok-restriction.3
      context.errors.add(
        place, "attribute " + quoted(use.decl->name.local) + " is required by the base type and may not be left out");
  }
  for (axsAttributeUse const& use : uses)
  {
    axsSchemaName const& name = use.decl->name;
    bool const is_allowed =
      base_wildcard.has_value() && axsNamespaceConstraint::allows(*base_wildcard, name.name_space);
    if (!is_allowed && base_uses.find(name.name_space, name.local) == axsAttributeUses::none)
      context.errors.add( // derivation-ok-restriction.2.2
        use.place,
        "attribute " + quoted(name.local) + " is not one of the base type, so a restriction may not have it");
  }
  if (wildcard.has_value())
    check_wildcard(*wildcard, base_wildcard);
}

// derivation-ok-restriction.2.1.
void axsComplexTypeCheck::check_use(axsAttributeUse const& use, axsAttributeUse const& base)
{
  using Kind = axsValueConstraint::Kind;
  std::string const what = "attribute " + quoted(use.decl->name.local);
  if (base.is_required && !use.is_required)
    context.errors.add(use.place, what + " is required by the base type, so it must be here, too");
  if (use.decl != base.decl && !use.decl->type->is_derived_from(*base.decl->type))
    context.errors.add(use.place, what + " has a type that is not derived from the one that it has in the base type");
  bool const keeps_value = base.constraint.kind != Kind::fixed ||
                           (use.constraint.kind == Kind::fixed && use.constraint.bytes == base.constraint.bytes);
  if (!keeps_value)
    context.errors.add(use.place, what + " has the fixed value " + quoted(base.constraint.value) +
                                    " in the base type, so it must be here, "
                                    "too");
}

// derivation-ok-restriction.4.
void axsComplexTypeCheck::check_wildcard(axsWildcard const& wildcard, std::optional<axsWildcard> const& base)
{
  if (!base.has_value())
    context.errors.add(wildcard.place, "the base type has no attribute wildcard, so a restriction may not have one");
  else if (!axsNamespaceConstraint::is_subset(wildcard, *base))
    context.errors.add(wildcard.place, "the attribute wildcard allows more than that of the base type");
  else if (strength(wildcard.process) < strength(base->process))
    context.errors.add(wildcard.place, "the attribute wildcard is processed less strictly than that of the base type");
}

// derivation-ok-restriction.5.
void axsComplexTypeCheck::check_restricted_content(axsComplexType const& type, axsComplexType const& base)
{
  bool const base_may_be_empty =
    base.content == Content::empty ||
    (base.has_element_content() && (!base.particle.has_value() || groups.is_emptiable(*base.particle)));
  std::string const base_words = axsTypeDerivation::words(type.base);
  switch (type.content)
  {
  case Content::simple:
    if (base.content == Content::simple)
    {
      if (!type.simple_content->is_derived_from(*base.simple_content))
        context.errors.add(type.place, "the content is not derived from that of " + base_words);
    }
    else if (base.content != Content::mixed || !base_may_be_empty)
      context.errors.add(type.place, "the content of " + base_words + " cannot be restricted to a simple one");
    return;
  case Content::empty:
    if (!base_may_be_empty)
      context.errors.add(type.place, "the content of " + base_words + " may not be empty");
    return;
  case Content::mixed:
  case Content::element_only:
    if (!base.has_element_content() || (type.content == Content::mixed && base.content != Content::mixed))
    {
      context.errors.add(type.place, "the content is no restriction of that of " + base_words);
      return;
    }
    groups.check_restriction(type, base);
  }
}
