#include "axsGroupCheck.h"

#include "axsElementDecl.h"
#include "axsSchemaText.h"
#include "axsTypeDerivation.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{
using Compositor = axsModelGroup::Compositor;
using axsSchemaText::quoted;

// A group whose members are looked at one after the other.
struct Open
{
  axsModelGroup const* group;
  std::size_t next;
};

// The next group in it; null at its end.
axsModelGroup const* next_group(Open& open)
{
  while (open.next < open.group->particles.size())
    if (axsModelGroup const* const inner = open.group->particles[open.next++].group)
      return inner;
  return nullptr;
}
}

bool axsGroupCheck::check_circles()
{
  enum class State
  {
    active,
    done
  };
  std::unordered_map<axsModelGroup const*, State> states;
  bool is_right = true;
  for (axsSchemaSymbol const& symbol : context.symbols.all())
  {
    if (symbol.group == nullptr || states.count(symbol.group) != 0)
      continue;
    std::vector<Open> open{{symbol.group, 0}};
    states[symbol.group] = State::active;
    while (!open.empty())
    {
      axsModelGroup const* const inner = next_group(open.back());
      if (inner == nullptr)
      {
        states[open.back().group] = State::done;
        open.pop_back();
        continue;
      }
      auto const [known, is_new] = states.emplace(inner, State::active);
      if (is_new)
        open.push_back({inner, 0});
      else if (known->second == State::active)
      {
        context.errors.add(symbol.element->place, quoted(symbol.name().local) + " is defined by itself");
        is_right = false;
      }
    }
  }
  return is_right;
}

bool axsGroupCheck::is_emptiable(axsParticle const& particle)
{
  if (particle.min_occurs == 0 || particle.group == nullptr)
    return particle.min_occurs == 0;
  complete(*particle.group);
  return emptiable.at(particle.group);
}

// Finds it out for the group and all groups in it, these first.
void axsGroupCheck::complete(axsModelGroup const& group)
{
  std::vector<Open> open;
  if (emptiable.count(&group) == 0)
    open.push_back({&group, 0});
  while (!open.empty())
  {
    if (axsModelGroup const* const inner = next_group(open.back()))
    {
      if (emptiable.count(inner) == 0)
        open.push_back({inner, 0});
      continue;
    }
    axsModelGroup const& done = *open.back().group;
    auto const may_be_empty = [&](axsParticle const& particle)
    { return particle.min_occurs == 0 || (particle.group != nullptr && emptiable.at(particle.group)); };
    bool const is_choice = done.compositor == Compositor::choice;
    emptiable[&done] =
      is_choice ? done.particles.empty() || std::any_of(done.particles.begin(), done.particles.end(), may_be_empty)
                : std::all_of(done.particles.begin(), done.particles.end(), may_be_empty);
    open.pop_back();
  }
}

void axsGroupCheck::check_all_groups()
{
  for (axsModelGroup const& group : context.store.groups)
    for (axsParticle const& particle : group.particles)
      if (particle.group != nullptr && particle.group->compositor == Compositor::all)
        context.errors.add(
          particle.place, "an 'all' group must be the whole content; it may not stand in another group");
  for (axsComplexType const& type : context.store.complex_types)
    if (type.particle.has_value() && type.particle->group != nullptr &&
        type.particle->group->compositor == Compositor::all && type.particle->max_occurs != 1)
      context.errors.add(type.particle->place, "an 'all' group may occur only once");
}

void axsGroupCheck::check_restriction(axsComplexType const& type, axsComplexType const& base)
{
  // All types restrict the ur-type definition (derivation-ok-restriction.5.1).
  if (!type.particle.has_value() || base.base.complex == &base)
    return;
  static axsModelGroup const nothing;
  axsParticle empty;
  empty.group = &nothing;
  axsParticle const& base_particle =
    base.particle.has_value() ? *base.particle : redefinitions.emplace_back(std::move(empty));
  check_restriction(*type.particle, base_particle, type.place, axsTypeDerivation::words(type.base));
}

void axsGroupCheck::check_restriction(axsSchemaSymbol const& redefinition)
{
  auto const as_particle = [this](axsModelGroup const& group) -> axsParticle const&
  {
    axsParticle& particle = redefinitions.emplace_back();
    particle.group = &group;
    return particle;
  };
  check_restriction(as_particle(*redefinition.group), as_particle(*redefinition.redefined->group),
    redefinition.element->place, "the group that it redefines");
}

void axsGroupCheck::check_restriction(
  axsParticle const& restricted, axsParticle const& base, axsSchemaPlace place, std::string const& base_words)
{
  if (!restrictions)
    restrictions.emplace(*context.models);
  if (restrictions->check(restricted, base))
    return;
  if (restrictions->has_too_many_parts())
  {
    context.errors.add(place, "the content, or that of " + base_words + ", has more than " +
                                std::to_string(axsParticleRestriction::max_parts) +
                                " particles, its groups written out: too many to see whether it is a restriction");
    return;
  }
  axsParticle const* const culprit = restrictions->culprit();
  std::string const what = culprit == nullptr || culprit->element == nullptr
                             ? std::string()
                             : ": element " + quoted(culprit->element->name.local) + " does not fit";
  context.errors.add(culprit == nullptr || culprit->place.line == 0 ? place : culprit->place,
    "the content is no restriction of that of " + base_words + what);
}
