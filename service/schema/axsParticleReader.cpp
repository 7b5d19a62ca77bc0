#include "axsParticleReader.h"

#include "axsAttributeReader.h"
#include "axsSchemaText.h"

namespace
{
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using Space = axsSchemaSymbol::Space;

bool is_particle(Tag tag)
{
  switch (tag)
  {
  case Tag::element:
  case Tag::group:
  case Tag::all:
  case Tag::choice:
  case Tag::sequence:
  case Tag::any:
    return true;
  default:
    return false;
  }
}

bool is_group(Tag tag)
{
  return tag == Tag::all || tag == Tag::choice || tag == Tag::sequence;
}

axsParticle occurrence_of(axsSchemaElement const& element)
{
  axsParticle made;
  made.place = element.place;
  if (element.has(Field::min_occurs))
    made.min_occurs = axsSchemaText::count(element.value(Field::min_occurs)).value_or(1);
  std::string_view const max = element.value(Field::max_occurs);
  if (max == "unbounded")
    made.max_occurs = axsParticle::unbounded;
  else if (!max.empty())
    made.max_occurs = axsSchemaText::count(max).value_or(1);
  return made;
}
}

axsParticleReader::axsParticleReader(axsSchemaContext& shared, axsElementReader& elements)
  : context(shared),
    element_decls(elements)
{
}

std::optional<axsParticle> axsParticleReader::read(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsParticle particle = occurrence_of(element);
  if (element.tag == Tag::group)
  {
    if (!set_term(particle, unit, element))
      return std::nullopt;
  }
  else
  {
    axsModelGroup& group = context.store.groups.emplace_back();
    fill(group, unit, element);
    particle.group = &group;
  }
  return particle.max_occurs == 0 ? std::nullopt : std::optional(particle);
}

void axsParticleReader::fill(axsSchemaSymbol& symbol)
{
  for (axsSchemaElement const* child = symbol.element->first_child; child != nullptr; child = child->next)
    if (is_group(child->tag))
      fill(*symbol.group, *symbol.unit, *child);
}

void axsParticleReader::begin(axsModelGroup& group, axsSchemaElement const& element)
{
  using Compositor = axsModelGroup::Compositor;
  group.place = element.place;
  group.compositor = element.tag == Tag::all      ? Compositor::all
                     : element.tag == Tag::choice ? Compositor::choice
                                                  : Compositor::sequence;
}

void axsParticleReader::fill(axsModelGroup& group, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  begin(group, element);
  std::vector<Open> open{{&group, element.first_child}};
  while (!open.empty())
  {
    axsSchemaElement const* const next = open.back().next;
    if (next == nullptr)
    {
      open.pop_back();
      continue;
    }
    open.back().next = next->next;
    if (is_particle(next->tag))
      add(open, unit, *next);
  }
}

// What may not occur is read, too, for what may be wrong with it, but is no particle (3.9.2).
void axsParticleReader::add(std::vector<Open>& open, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsModelGroup& around = *open.back().group;
  axsParticle particle = occurrence_of(element);
  if (is_group(element.tag))
  {
    axsModelGroup& group = context.store.groups.emplace_back();
    begin(group, element);
    particle.group = &group;
    open.push_back({&group, element.first_child});
  }
  else if (!set_term(particle, unit, element))
    return;
  if (particle.max_occurs > 0)
    around.particles.push_back(particle);
}

// Whether there is one.
bool axsParticleReader::set_term(axsParticle& particle, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  if (element.tag == Tag::any)
  {
    particle.wildcard = &context.store.wildcards.emplace_back(axsAttributeReader::wildcard(unit, element));
    return true;
  }
  if (element.tag == Tag::element && !element.has(Field::ref))
  {
    particle.element = &element_decls.local(unit, element);
    return true;
  }
  bool const is_element = element.tag == Tag::element;
  axsSchemaSymbol const* const symbol =
    context.symbols.resolve(is_element ? Space::element : Space::group, unit, element, Field::ref);
  if (symbol == nullptr)
    return false;
  particle.element = symbol->element_decl;
  particle.group = symbol->group;
  return true;
}
