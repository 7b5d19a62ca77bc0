#include "axsSchemaBuilder.h"

#include "axsAttributeReader.h"
#include "axsComplexTypeCheck.h"
#include "axsComplexTypeReader.h"
#include "axsElementCheck.h"
#include "axsElementReader.h"
#include "axsGroupCheck.h"
#include "axsIdentityReader.h"
#include "axsParticleReader.h"
#include "axsRedefinitionCheck.h"
#include "axsSchemaText.h"
#include "axsSimpleTypeReader.h"
#include "axsTypeDerivation.h"

#include <unordered_set>
#include <utility>
#include <vector>

namespace
{
using Space = axsSchemaSymbol::Space;
using State = axsSchemaSymbol::State;
using Tag = axsSchemaTag;

// Those that a document redefines come before it.
std::vector<axsSchemaUnit const*> inner_ones_first(std::deque<axsSchemaUnit> const& units)
{
  struct Open
  {
    axsSchemaUnit const* unit;
    std::size_t next;
  };
  std::vector<axsSchemaUnit const*> sorted;
  std::unordered_set<axsSchemaUnit const*> seen;
  for (axsSchemaUnit const& unit : units)
  {
    std::vector<Open> open;
    if (seen.insert(&unit).second)
      open.push_back({&unit, 0});
    while (!open.empty())
    {
      Open& innermost = open.back();
      if (innermost.next == innermost.unit->included.size())
      {
        sorted.push_back(innermost.unit);
        open.pop_back();
        continue;
      }
      axsSchemaUnit const* const inner = innermost.unit->included[innermost.next++];
      if (seen.insert(inner).second)
        open.push_back({inner, 0});
    }
  }
  return sorted;
}

std::string shown(axsParticle const& particle)
{
  return particle.element == nullptr ? std::string("a wildcard") : axsSchemaText::quoted(particle.element->name.local);
}

std::string shown_with_line(axsParticle const& particle, axsComplexType const& of)
{
  return shown(particle) + " of line " + std::to_string(particle.place.line) +
         (particle.place.file == of.place.file ? "" : " of another file");
}

std::string has_two(axsContentProblem const& problem)
{
  return " has " + shown(*problem.first) + " with two different types (element declarations consistent)";
}

std::string words_of(axsContentProblem const& problem, axsComplexType const& type)
{
  std::string const type_words =
    type.name.empty() ? std::string("this type") : "the type " + axsSchemaText::quoted(type.name.local);
  if (problem.kind == axsContentProblem::Kind::inconsistent)
    return "the content of " + type_words + has_two(problem);
  return "the content of " + type_words + " is ambiguous: an element in it may be meant by " +
         shown_with_line(*problem.first, type) + " or by " + shown_with_line(*problem.second, type) +
         " (unique particle attribution)";
}
}

axsSchemaBuilder::axsSchemaBuilder(axsSchemaLoader const& documents, axsSchemaErrors& told)
  : loader(documents),
    errors(told),
    model(std::make_shared<axsSchemaModel>(documents.files())),
    symbols(told),
    context{told, symbols, model->components(), nullptr, {}, {}, nullptr}
{
}

std::shared_ptr<axsSchemaComponents const> axsSchemaBuilder::build()
{
  // What is wrong with names makes more of what follows look wrong than is.
  declare();
  if (errors.any())
    return nullptr;
  make_components();
  if (errors.any())
    return nullptr;
  check();
  if (errors.any())
    return nullptr;
  publish();
  return std::move(model);
}

void axsSchemaBuilder::declare()
{
  for (axsSchemaUnit const& unit : loader.units())
    symbols.declare(unit);
  for (axsSchemaUnit const* const unit : inner_ones_first(loader.units()))
    symbols.redefine(*unit);
}

void axsSchemaBuilder::make_components()
{
  make_any_type();
  axsSimpleTypeReader simple_types(context);
  axsAttributeReader attributes(context, simple_types);
  axsIdentityReader identity_constraints(context);
  axsElementReader elements(context, simple_types, identity_constraints);
  axsParticleReader particles(context, elements);
  axsComplexTypeReader complex_types(context, simple_types, attributes, particles);

  // Those that components make on the way are not among them.
  std::vector<axsSchemaSymbol*> globals;
  for (axsSchemaSymbol& symbol : symbols.all())
    globals.push_back(&symbol);
  for (axsSchemaSymbol* const symbol : globals)
    allocate(*symbol);
  for (axsSchemaSymbol* const symbol : globals)
    if (symbol->element->tag == Tag::simple_type)
      simple_types.named(*symbol);
    else if (symbol->attribute_decl != nullptr)
      attributes.fill(*symbol);
  for (axsSchemaSymbol* const symbol : globals)
    if (symbol->element->tag == Tag::attribute_group)
      attributes.make_group(*symbol);
    else if (symbol->group != nullptr)
      particles.fill(*symbol);
    else if (symbol->element_decl != nullptr)
      elements.fill(*symbol);
  while (!context.complex_types.empty())
  {
    axsSchemaSymbol& symbol = *context.complex_types.back();
    context.complex_types.pop_back();
    complex_types.make(symbol);
  }
  elements.take_types_of_heads();
  identity_constraints.resolve_references();
}

void axsSchemaBuilder::allocate(axsSchemaSymbol& symbol)
{
  switch (symbol.element->tag)
  {
  case Tag::complex_type:
    symbol.complex_type = &context.store.complex_types.emplace_back();
    context.complex_types.push_back(&symbol);
    return;
  case Tag::element:
    symbol.element_decl = &context.store.elements.emplace_back();
    return;
  case Tag::attribute:
    symbol.attribute_decl = &context.store.attributes.emplace_back();
    return;
  case Tag::group:
    symbol.group = &context.store.groups.emplace_back();
    return;
  default:
    return;
  }
}

// The complex ur-type definition (3.4.7).
void axsSchemaBuilder::make_any_type()
{
  axsWildcard anything;
  anything.process = axsWildcard::Process::lax;
  axsParticle any;
  any.min_occurs = 0;
  any.max_occurs = axsParticle::unbounded;
  any.wildcard = &context.store.wildcards.emplace_back(anything);
  axsModelGroup& group = context.store.groups.emplace_back();
  group.particles = {any};
  axsParticle whole;
  whole.group = &group;

  axsComplexType& type = context.store.complex_types.emplace_back();
  type.name = {std::string(axsSchemaVocabulary::schema_namespace), "anyType"};
  type.base.complex = &type;
  type.attribute_wildcard = anything;
  type.content = axsComplexType::Content::mixed;
  type.particle = whole;
  context.any_type = &type;
}

void axsSchemaBuilder::check()
{
  axsGroupCheck groups(context);
  axsElementCheck elements(context, groups);
  if (!groups.check_circles() || !elements.check_circles())
    return;
  context.models = &model->make_content_models();
  groups.check_all_groups();
  for (axsSchemaContext::Declared const& declared : context.elements)
    elements.check(declared);
  axsComplexTypeCheck complex_types(context, groups);
  for (axsComplexType const& type : context.store.complex_types)
    if (&type != context.any_type)
      complex_types.check(type);
  axsRedefinitionCheck redefinitions(context, groups, complex_types);
  for (axsSchemaSymbol const& symbol : symbols.all())
    if (symbol.redefined != nullptr)
      redefinitions.check(symbol);
  if (!errors.any())
    compile_contents();
}

void axsSchemaBuilder::compile_contents()
{
  for (axsComplexType& type : context.store.complex_types)
  {
    if (!type.particle.has_value() || errors.full())
      continue;
    axsContentProblem problem;
    type.automaton = context.models->compile(*type.particle, problem);
    if (problem)
      errors.add(type.place, words_of(problem, type));
  }
  for (axsSchemaSymbol const& symbol : symbols.all())
    if (symbol.group != nullptr && !errors.full())
      check_group(symbol);
}

// A group may be wrong that no type refers to. Only contents, not groups, must be unambiguous.
void axsSchemaBuilder::check_group(axsSchemaSymbol const& symbol)
{
  axsContentProblem problem;
  context.models->check(*symbol.group, problem);
  if (problem.kind == axsContentProblem::Kind::inconsistent)
    errors.add(symbol.element->place, "the group " + axsSchemaText::quoted(symbol.name().local) + has_two(problem));
}

void axsSchemaBuilder::publish()
{
  std::uint32_t number = 0;
  for (axsComplexType& type : context.store.complex_types)
    type.number = number++;
  for (axsSchemaUnit const& unit : loader.units())
    model->add_namespace(unit.target);
  model->add({axsSchemaVocabulary::schema_namespace, "anyType"}, {nullptr, context.any_type});
  for (axsSchemaSymbol const& symbol : symbols.all())
  {
    axsSchemaElement const& element = *symbol.element;
    bool const is_global = element.parent->tag == Tag::schema || element.parent->tag == Tag::redefine;
    if (!is_global)
      continue;
    switch (element.tag)
    {
    case Tag::element:
      model->add(*symbol.element_decl);
      break;
    case Tag::attribute:
      model->add(*symbol.attribute_decl);
      break;
    case Tag::simple_type:
    case Tag::complex_type:
      if (symbols.find(Space::type, symbol.name()) == &symbol)
        model->add(symbol.name(), {symbol.simple_type, symbol.complex_type});
      break;
    case Tag::notation:
      model->add_notation(symbol.name());
      break;
    default:
      break;
    }
  }
}
