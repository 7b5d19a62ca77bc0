#include "axsComplexTypeReader.h"

#include "axsBuiltInTypes.h"
#include "axsNamespaceConstraint.h"
#include "axsSchemaFlags.h"
#include "axsSchemaText.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace
{
using Content = axsComplexType::Content;
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using Space = axsSchemaSymbol::Space;
using State = axsSchemaSymbol::State;
using axsSchemaText::quoted;

axsSchemaNameView view(axsSchemaName const& name)
{
  return {name.name_space, name.local};
}

axsSchemaElement const* group_in(axsSchemaElement const& element)
{
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::group || child->tag == Tag::all || child->tag == Tag::choice || child->tag == Tag::sequence)
      return child;
  return nullptr;
}

// Whether it is an all or a sequence without particles, or a choice without particles that need not occur (3.4.2,
// explicit content).
bool says_nothing(axsSchemaElement const& group)
{
  for (axsSchemaElement const* child = group.first_child; child != nullptr; child = child->next)
    if (child->tag != Tag::annotation)
      return false;
  if (group.tag == Tag::choice)
    return group.has(Field::min_occurs) && axsSchemaText::count(group.value(Field::min_occurs)) == 0;
  return group.tag != Tag::group;
}
}

// A type that is being made, and how.
struct axsComplexTypeReader::Derivation
{
  axsSchemaSymbol* symbol = nullptr;
  /// Null where the content is given without xs:simpleContent or xs:complexContent.
  axsSchemaElement const* content = nullptr;
  /// What has the attributes and the content: xs:restriction or xs:extension, or xs:complexType itself.
  axsSchemaElement const* element = nullptr;
  axsTypeDefinition base;
  axsSchemaSymbol* base_symbol = nullptr; // of a complex type

  axsComplexType& type() const { return *symbol->complex_type; }
  axsSchemaUnit const& unit() const { return *symbol->unit; }
  bool is_simple() const { return content != nullptr && content->tag == Tag::simple_content; }
  bool is_extension() const { return element->tag == Tag::extension; }
};

axsComplexTypeReader::axsComplexTypeReader(
  axsSchemaContext& shared, axsSimpleTypeReader& types, axsAttributeReader& attributes, axsParticleReader& particles)
  : context(shared),
    simple_types(types),
    attribute_reader(attributes),
    particle_reader(particles)
{
}

void axsComplexTypeReader::make(axsSchemaSymbol& symbol)
{
  std::vector<Derivation> open;
  if (symbol.state == State::untouched)
    open.push_back(derivation_of(symbol));
  while (!open.empty())
  {
    Derivation& derivation = open.back();
    axsSchemaSymbol* const base = derivation.base_symbol;
    if (base != nullptr && base->state == State::untouched)
    {
      open.push_back(derivation_of(*base));
      continue;
    }
    if (base != nullptr && base->state == State::active) // ct-props-correct.3
    {
      context.errors.add(derivation.element->place_of(Field::base),
        quoted(derivation.symbol->element->value(Field::name)) + " is defined by itself");
      derivation.base = {nullptr, context.any_type};
    }
    complete(derivation);
    derivation.symbol->state = State::done;
    open.pop_back();
  }
}

axsComplexTypeReader::Derivation axsComplexTypeReader::derivation_of(axsSchemaSymbol& symbol)
{
  symbol.state = State::active;
  axsSchemaElement const& element = *symbol.element;
  Derivation made;
  made.symbol = &symbol;
  made.element = &element;
  made.base.complex = context.any_type;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::simple_content || child->tag == Tag::complex_content)
      made.content = child;
  if (made.content == nullptr)
    return made;
  for (axsSchemaElement const* child = made.content->first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::restriction || child->tag == Tag::extension)
      made.element = child;
  find_base(made);
  return made;
}

void axsComplexTypeReader::find_base(Derivation& derivation)
{
  axsSchemaElement const& element = *derivation.element;
  axsSchemaPlace const place = element.place_of(Field::base);
  axsSchemaNameView name;
  if (!context.symbols.expand(derivation.unit(), element, element.value(Field::base), place, name))
    return;
  bool const is_of_language = name.name_space == axsSchemaVocabulary::schema_namespace;
  bool const is_any_type = is_of_language && name.local == "anyType";
  axsSimpleType const* const built_in = is_of_language ? axsBuiltInTypes::find(name.local) : nullptr;
  if (built_in != nullptr)
    derivation.base = {built_in, nullptr};
  else if (!is_any_type)
  {
    axsSchemaSymbol* const symbol = context.symbols.resolve(Space::type, derivation.unit(), element, name, place);
    if (symbol == nullptr)
      return;
    if (symbol->is_complex_type())
    {
      derivation.base_symbol = symbol;
      derivation.base = {nullptr, symbol->complex_type};
    }
    else
      derivation.base = {&simple_types.named(*symbol), nullptr};
  }
  if (!derivation.is_simple() && derivation.base.is_simple()) // src-ct.1
  {
    context.errors.add(place, axsSchemaSymbols::words(name) +
                                " is a simple type; complexContent is made from a complex "
                                "one");
    derivation.base = {nullptr, context.any_type};
  }
}

// Its base is made.
void axsComplexTypeReader::complete(Derivation& derivation)
{
  axsComplexType& type = derivation.type();
  axsSchemaElement const& element = *derivation.symbol->element;
  axsSchemaElement const& schema = derivation.unit().document->root();
  if (element.role == axsSchemaRole::global_complex_type)
    type.name = {derivation.unit().target, std::string(element.value(Field::name))};
  type.base = derivation.base;
  type.derivation = derivation.is_extension() ? axsDerivationExtension : axsDerivationRestriction;
  type.is_abstract = element.is_true(Field::abstract, false);
  type.final_set = axsSchemaFlags::final_of(element, schema);
  type.block = axsSchemaFlags::block_of_complex_type(element, schema);
  type.place = element.place;
  if (derivation.is_simple())
    set_simple_content(derivation);
  else
    set_complex_content(derivation);
  set_attributes(derivation);
}

// src-ct.2.
void axsComplexTypeReader::set_simple_content(Derivation const& derivation)
{
  axsComplexType& type = derivation.type();
  axsComplexType const* const base = derivation.base.complex;
  axsSchemaPlace const place = derivation.element->place_of(Field::base);
  type.content = Content::simple;
  type.simple_content = &axsBuiltInTypes::any_simple_type();
  if (!derivation.is_extension())
  {
    type.simple_content = &restricted_content(derivation);
    return;
  }
  if (base == nullptr)
    type.simple_content = derivation.base.simple;
  else if (base->content == Content::simple)
    type.simple_content = base->simple_content;
  else
    context.errors.add(place, "simpleContent cannot be made from a type whose content is not simple");
}

axsSimpleType const& axsComplexTypeReader::restricted_content(Derivation const& derivation)
{
  axsComplexType const* const base = derivation.base.complex;
  axsSchemaElement const& element = *derivation.element;
  axsSchemaPlace const place = element.place_of(Field::base);
  axsSchemaElement const* const inner = element.child(Tag::simple_type);
  axsSimpleType const* start = inner == nullptr ? nullptr : &simple_types.anonymous(derivation.unit(), *inner);
  if (base == nullptr)
    context.errors.add(place, "a restriction in simpleContent is made from a complex type, not from a simple one");
  else if (base->content == Content::mixed)
  {
    if (inner == nullptr)
      context.errors.add(element.place, "'restriction' of a mixed content to a simple one lacks its 'simpleType'");
  }
  else if (base->content != Content::simple)
    context.errors.add(place, "simpleContent cannot be made from a type whose content is not simple");
  else if (start == nullptr)
    start = base->simple_content;
  if (start == nullptr)
    start = &axsBuiltInTypes::any_simple_type();
  return simple_types.restricted(derivation.unit(), element, *start);
}

void axsComplexTypeReader::set_complex_content(Derivation const& derivation)
{
  axsSchemaElement const& element = *derivation.symbol->element;
  axsSchemaElement const* const content = derivation.content;
  bool const is_mixed = content != nullptr && content->has(Field::mixed) ? content->is_true(Field::mixed, false)
                                                                         : element.is_true(Field::mixed, false);
  axsSchemaElement const* const group = group_in(*derivation.element);
  std::optional<axsParticle> own;
  if (group != nullptr)
  {
    own = particle_reader.read(derivation.unit(), *group);
    if (says_nothing(*group))
      own.reset();
  }
  axsComplexType& type = derivation.type();
  if (derivation.is_extension())
  {
    extend_content(derivation, own, is_mixed);
    return;
  }
  type.particle = own;
  type.content = is_mixed ? Content::mixed : own.has_value() ? Content::element_only : Content::empty;
}

// 3.4.2, content type of an extension.
void axsComplexTypeReader::extend_content(Derivation const& derivation, std::optional<axsParticle> own, bool is_mixed)
{
  axsComplexType& type = derivation.type();
  axsComplexType const& base = *derivation.base.complex;
  if (!own.has_value() && (!is_mixed || base.content == Content::mixed))
  {
    type.content = base.content;
    type.simple_content = base.simple_content;
    type.particle = base.particle;
    return;
  }
  type.content = is_mixed ? Content::mixed : Content::element_only;
  type.particle = own;
  if (!base.particle.has_value())
    return;
  if (!own.has_value())
  {
    type.particle = base.particle;
    return;
  }
  axsModelGroup& both = context.store.groups.emplace_back();
  both.place = derivation.element->place;
  both.particles = {*base.particle, *own};
  axsParticle whole;
  whole.group = &both;
  whole.place = derivation.element->place;
  type.particle = whole;
}

void axsComplexTypeReader::set_attributes(Derivation const& derivation)
{
  axsComplexType& type = derivation.type();
  axsAttributeSet own = attribute_reader.collect(derivation.unit(), *derivation.element);
  type.attribute_wildcard = own.wildcard;
  if (derivation.base.complex != nullptr && derivation.base.complex != context.any_type)
  {
    inherit_attributes(derivation, own);
    if (derivation.is_extension())
      unite_wildcards(derivation);
  }
  else
  {
    if (derivation.base.complex == context.any_type && derivation.is_extension())
      unite_wildcards(derivation);
    type.attributes = std::move(own.uses);
  }
}

void axsComplexTypeReader::inherit_attributes(Derivation const& derivation, axsAttributeSet& own)
{
  axsComplexType& type = derivation.type();
  axsAttributeUses const& inherited = derivation.base.complex->attributes;
  if (derivation.is_extension())
  {
    for (axsAttributeUse const& use : own.uses)
      if (inherited.find(use.decl->name.name_space, use.decl->name.local) != axsAttributeUses::none)
        context.errors.add(use.place, // ct-props-correct.4
          "attribute " + quoted(use.decl->name.local) + " is declared twice: the base type has it, too");
    type.attributes =
      inherited.empty() ? std::move(own.uses) : axsAttributeUses(inherited, {own.uses.begin(), own.uses.end()});
    return;
  }
  if (own.uses.empty() && own.prohibited.empty())
  {
    type.attributes = inherited;
    return;
  }
  axsSchemaNameTable<bool> said;
  for (axsAttributeUse const& use : own.uses)
    said.emplace(view(use.decl->name), true);
  for (axsAttributeSet::Prohibited const& prohibited : own.prohibited)
    said.emplace(view(prohibited.name), true);
  std::vector<axsAttributeUse> all;
  std::copy_if(inherited.begin(), inherited.end(), std::back_inserter(all),
    [&](axsAttributeUse const& use) { return said.find(view(use.decl->name)) == said.end(); });
  std::copy(own.uses.begin(), own.uses.end(), std::back_inserter(all));
  type.attributes = axsAttributeUses(std::move(all));
}

// Of an extension, all that its own and that of its base allow (3.4.2).
void axsComplexTypeReader::unite_wildcards(Derivation const& derivation)
{
  axsComplexType& type = derivation.type();
  std::optional<axsWildcard> const& base = derivation.base.complex->attribute_wildcard;
  if (!base.has_value())
    return;
  if (!type.attribute_wildcard.has_value())
  {
    type.attribute_wildcard = base;
    return;
  }
  std::optional<axsWildcard> both = axsNamespaceConstraint::united(*type.attribute_wildcard, *base);
  if (both.has_value())
    type.attribute_wildcard = std::move(both);
  else
    context.errors.add(derivation.element->place,
      "what this attribute wildcard or that of the base type allows cannot be expressed (intensional union)");
}
