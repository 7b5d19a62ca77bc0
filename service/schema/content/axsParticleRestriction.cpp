#include "axsParticleRestriction.h"

#include "axsContentModels.h"
#include "axsElementDecl.h"
#include "axsIdentityConstraint.h"
#include "axsModelGroup.h"
#include "axsNamespaceConstraint.h"
#include "axsTypeDerivation.h"
#include "axsWildcard.h"

#include <algorithm>
#include <unordered_set>

namespace
{
using Compositor = axsModelGroup::Compositor;

std::uint64_t const unbounded = axsParticle::unbounded;

std::uint64_t sum(std::uint64_t left, std::uint64_t right) noexcept
{
  return left > unbounded - right ? unbounded : left + right;
}

std::uint64_t product(std::uint64_t left, std::uint64_t right) noexcept
{
  if (left == 0 || right == 0)
    return 0;
  return left > unbounded / right ? unbounded : left * right;
}

bool is_once(axsParticle const& particle) noexcept
{
  return particle.min_occurs == 1 && particle.max_occurs == 1;
}

bool is_stricter(axsWildcard::Process restricted, axsWildcard::Process base) noexcept
{
  return restricted <= base; // strict, lax, skip
}

bool allows(axsWildcard const& wildcard, axsElementDecl const& element)
{
  return axsNamespaceConstraint::allows(wildcard, element.name.name_space);
}
}

bool axsParticleRestriction::check(axsParticle const& restricted, axsParticle const& base)
{
  wrong = nullptr;
  is_given_up = false;
  bool const is_empty = pointless.is_empty(restricted);
  View const view = view_of(base);
  if (pointless.is_empty(base))
    return is_empty;
  return is_empty ? total_range(view).min == 0 : run(view_of(restricted), view);
}

bool axsParticleRestriction::is_range(Range const& restricted, Range const& base) noexcept
{
  return restricted.min >= base.min && restricted.max <= base.max; // no bound is the largest number
}

axsParticleRestriction::View axsParticleRestriction::view_of(axsParticle const& given)
{
  axsParticle const& particle = pointless.innermost(given);
  View view;
  view.particle = &particle;
  view.min = particle.min_occurs;
  view.max = particle.max_occurs;
  if (particle.element != nullptr)
  {
    view.element = particle.element;
    view.kind = models.names_of(*particle.element).is_single() ? Kind::element : Kind::choice;
  }
  else if (particle.wildcard != nullptr)
    view.kind = Kind::wildcard;
  else
    view.kind = particle.group->compositor == Compositor::all      ? Kind::all
                : particle.group->compositor == Compositor::choice ? Kind::choice
                                                                   : Kind::sequence;
  return view;
}

// The members of a substitution group.
std::vector<axsParticleRestriction::View> axsParticleRestriction::members_of(View const& view)
{
  std::vector<View> members;
  for (axsContentNames::Span const& span : models.names_of(*view.element).spans)
    for (std::uint32_t symbol = span.first; symbol <= span.last; ++symbol)
    {
      View member;
      member.particle = view.particle;
      member.kind = Kind::element;
      member.element = models.symbols().global(symbol);
      members.push_back(member);
    }
  return members;
}

// The parts of a group, those of groups in it that are pointless among them.
std::vector<axsParticleRestriction::View> axsParticleRestriction::parts_of(View const& view)
{
  if (view.kind == Kind::element || view.kind == Kind::wildcard)
    return {view};
  if (view.element != nullptr)
    return members_of(view);
  Compositor const compositor = view.particle->group->compositor;
  std::vector<View> parts;
  std::vector<axsParticle const*> waiting;
  auto const wait = [&](axsModelGroup const& group)
  {
    for (auto particle = group.particles.rbegin(); particle != group.particles.rend(); ++particle)
      waiting.push_back(&*particle);
  };
  wait(*view.particle->group);
  while (!waiting.empty() && !is_given_up)
  {
    is_given_up = waiting.size() + parts.size() > max_parts;
    axsParticle const& particle = pointless.innermost(*waiting.back());
    waiting.pop_back();
    if (pointless.is_empty(particle))
      continue;
    bool const is_same = particle.group != nullptr && particle.group->compositor == compositor;
    if (is_same && compositor != Compositor::all && is_once(particle))
      wait(*particle.group);
    else
      parts.push_back(view_of(particle));
  }
  return parts;
}

// Of the side that restricts: in a choice, a substitution group that occurs once is a pointless choice. On the other side
// it is one part, which takes each of its members, as these have no order. An element that comes in by several groups is
// one part, or many groups that have each other's members would be large.
std::vector<axsParticleRestriction::View> axsParticleRestriction::restricted_parts_of(View const& view)
{
  std::vector<View> const outer = parts_of(view);
  if (view.kind != Kind::choice || view.element != nullptr)
    return outer;
  std::vector<View> parts;
  std::unordered_set<axsElementDecl const*> taken;
  for (View const& part : outer)
  {
    if (!is_pointless_choice(part))
      parts.push_back(part);
    else if (taken.count(part.element) == 0)
      for (View const& member : members_of(part))
        if (taken.insert(member.element).second)
          parts.push_back(member);
  }
  return parts;
}

// cos-seq-range, cos-choice-range, of a particle that occurs once.
axsParticleRestriction::Range axsParticleRestriction::range_of(axsModelGroup const& outermost)
{
  std::vector<axsModelGroup const*> open{&outermost};
  while (!open.empty())
  {
    axsModelGroup const& group = *open.back();
    bool const is_choice = group.compositor == Compositor::choice;
    Range range{is_choice ? unbounded : 0, 0};
    bool is_complete = true;
    for (axsParticle const& particle : group.particles)
    {
      Range inner{1, 1};
      if (particle.group != nullptr)
      {
        auto const found = ranges.find(particle.group);
        if (found == ranges.end())
        {
          open.push_back(particle.group);
          is_complete = false;
          continue;
        }
        inner = found->second;
      }
      inner = {product(inner.min, particle.min_occurs), product(inner.max, particle.max_occurs)};
      range.min = is_choice ? std::min(range.min, inner.min) : sum(range.min, inner.min);
      range.max = is_choice ? std::max(range.max, inner.max) : sum(range.max, inner.max);
    }
    if (!is_complete)
      continue;
    if (group.particles.empty())
      range.min = 0;
    ranges[&group] = range;
    open.pop_back();
  }
  return ranges.at(&outermost);
}

axsParticleRestriction::Range axsParticleRestriction::total_range(View const& view)
{
  bool const is_group = view.particle->group != nullptr && view.element == nullptr;
  Range const once = is_group ? range_of(*view.particle->group) : Range{1, 1};
  return {product(once.min, view.min), product(once.max, view.max)};
}

// Groups are compared part by part, those that are begun last first.
bool axsParticleRestriction::run(View const& restricted, View const& base)
{
  tasks.clear();
  Answer outcome = begin(restricted, base);
  if (outcome == Answer::no)
    wrong = restricted.particle;
  while (!tasks.empty() && !is_given_up)
  {
    View part;
    View base_part;
    outcome = next_pair(tasks.back(), part, base_part);
    if (outcome == Answer::open)
      outcome = begin(part, base_part);
    else
    {
      Task const& task = tasks.back();
      bool const fits = outcome == Answer::yes;
      known[{task.restricted.particle, task.base.particle, task.restricted.is_counted}] = fits;
      if (!fits)
        wrong = task.at < task.parts.size() ? task.parts[task.at].particle : nullptr;
      tasks.pop_back();
    }
    if (outcome != Answer::open && !tasks.empty())
      take(tasks.back(), outcome == Answer::yes);
  }
  return outcome == Answer::yes && !is_given_up;
}

axsParticleRestriction::Answer axsParticleRestriction::begin(View const& restricted, View const& base)
{
  Range const range{restricted.min, restricted.max};
  bool const is_in_range = !restricted.is_counted || is_range(range, {base.min, base.max});
  if (restricted.particle == base.particle && restricted.element == base.element)
    return answer(is_in_range);
  if (base.kind == Kind::wildcard)
    return begin_in_wildcard(restricted, base);
  if (restricted.element != nullptr && restricted.element == base.element)
    return answer(is_in_range);
  if (restricted.kind == Kind::element && base.kind == Kind::element)
    return answer(is_in_range && is_element_right(restricted, base));
  // rcase-RecurseAsIfGroup, of a substitution group; an element that occurs several times is a group of itself that does.
  if (restricted.kind == Kind::element && base.element != nullptr)
    return answer(is_in_range && (restricted.max > 1 || occurs_once(restricted)) && is_element_right(restricted, base));
  if (restricted.kind == Kind::wildcard || base.kind == Kind::element)
    return Answer::no;
  return begin_groups(restricted, base);
}

// rcase-NSCompat, rcase-NSSubset, rcase-NSRecurseCheckCardinality
axsParticleRestriction::Answer axsParticleRestriction::begin_in_wildcard(View const& restricted, View const& base)
{
  axsWildcard const& wildcard = *base.particle->wildcard;
  bool const is_in_range = !restricted.is_counted || is_range({restricted.min, restricted.max}, {base.min, base.max});
  if (restricted.kind == Kind::element)
    return answer(is_in_range && allows(wildcard, *restricted.element));
  if (restricted.kind == Kind::wildcard)
    return answer(is_in_range && axsNamespaceConstraint::is_subset(*restricted.particle->wildcard, wildcard) &&
                  is_stricter(restricted.particle->wildcard->process, wildcard.process));
  if (restricted.is_counted && !is_range(total_range(restricted), {base.min, base.max}))
    return Answer::no;
  return open_task(restricted, base, Rule::each_in_wildcard);
}

// The members of a substitution group have no order, so that it is restricted by some of them in any.
axsParticleRestriction::Rule axsParticleRestriction::rule_for(View const& base) noexcept
{
  if (base.kind != Kind::choice)
    return Rule::recurse;
  return base.element != nullptr ? Rule::map_and_sum : Rule::recurse_lax;
}

// Whether the base is a choice that takes the element less often than it may occur.
bool axsParticleRestriction::is_repeated_by_group(View const& restricted, View const& base)
{
  if (base.kind != Kind::choice)
    return false;
  std::vector<View> const parts = parts_of(base);
  return std::any_of(parts.begin(), parts.end(),
    [&](View const& part)
    {
      return part.element != nullptr && part.max < restricted.max &&
             member_of(part, restricted.element->name) != nullptr;
    });
}

// rcase-RecurseAsIfGroup, rcase-Recurse, rcase-RecurseLax, rcase-RecurseUnordered, rcase-MapAndSum
axsParticleRestriction::Answer axsParticleRestriction::begin_groups(View const& restricted, View const& base)
{
  Range const base_range{base.min, base.max};
  if (restricted.kind == Kind::element)
  {
    // An element that occurs several times is a group of itself that does so, where the base repeats the group.
    View once = restricted;
    once.min = once.max = 1;
    if (is_range({restricted.min, restricted.max}, base_range) && is_repeated_by_group(restricted, base))
      return open_task(once, base, rule_for(base));
    return is_range({1, 1}, base_range) ? open_task(restricted, base, rule_for(base)) : Answer::no;
  }
  if (restricted.kind == Kind::sequence && base.kind == Kind::choice)
  {
    std::uint64_t const count = parts_of(restricted).size();
    Range const range{product(restricted.min, count), product(restricted.max, count)};
    return is_range(range, base_range) ? open_task(restricted, base, Rule::map_and_sum) : Answer::no;
  }
  if (!is_range({restricted.min, restricted.max}, base_range))
    return Answer::no;
  bool const is_same_group =
    restricted.element == nullptr && base.element == nullptr && restricted.particle->group == base.particle->group;
  if (is_same_group)
    return Answer::yes;
  if (restricted.kind == Kind::sequence && base.kind == Kind::all)
    return open_task(restricted, base, Rule::recurse_unordered);
  return restricted.kind == base.kind ? open_task(restricted, base, rule_for(base)) : Answer::no;
}

axsParticleRestriction::Answer axsParticleRestriction::open_task(View const& restricted, View const& base, Rule rule)
{
  auto const found = known.find({restricted.particle, base.particle, restricted.is_counted});
  bool const is_whole = restricted.element == nullptr && base.element == nullptr;
  if (is_whole && found != known.end())
    return answer(found->second);
  Task task{restricted, base, rule, restricted_parts_of(restricted), {}, {}, 0, 0, false, {}, false};
  if (rule == Rule::each_in_wildcard)
    for (View& part : task.parts)
      part.is_counted = false;
  else
  {
    task.base_parts = parts_of(base);
    task.is_used.assign(task.base_parts.size(), 0);
    if (rule == Rule::map_and_sum || rule == Rule::recurse_unordered)
      for (std::size_t i = 0; i < task.base_parts.size(); ++i)
        if (View const& part = task.base_parts[i]; part.kind == Kind::element)
          task.names.emplace(axsSchemaNameView{part.element->name.name_space, part.element->name.local}, i);
  }
  tasks.push_back(std::move(task));
  return Answer::open;
}

// The two parts that are to be compared next; what comes of the whole, if that is known.
axsParticleRestriction::Answer axsParticleRestriction::next_pair(Task& task, View& restricted, View& base)
{
  if (task.has_failed)
    return Answer::no;
  if (task.at == task.parts.size())
    return end_of(task);
  restricted = task.parts[task.at];
  base = task.base;
  if (task.rule == Rule::each_in_wildcard)
    return Answer::open;
  bool const is_by_name = restricted.kind == Kind::element && !task.names.empty();
  if (is_by_name && !task.has_looked_by_name && find_by_name(task, restricted))
  {
    base = task.base_parts[task.base_at];
    return Answer::open;
  }
  auto const is_passed_over = [&](std::size_t part)
  {
    return (is_by_name && task.base_parts[part].kind == Kind::element) ||
           (task.rule == Rule::recurse_unordered && task.is_used[part] != 0);
  };
  while (task.base_at < task.base_parts.size() && is_passed_over(task.base_at))
    ++task.base_at;
  if (task.base_at == task.base_parts.size())
    return Answer::no;
  base = task.base_parts[task.base_at];
  return Answer::open;
}

// Elements of other names need no look. Whether there is one of its name that is free; it is the next one to look at.
bool axsParticleRestriction::find_by_name(Task& task, View const& restricted)
{
  task.has_looked_by_name = true;
  axsSchemaName const& name = restricted.element->name;
  auto const found = task.names.find({name.name_space, name.local});
  bool const is_free =
    found != task.names.end() && (task.rule == Rule::map_and_sum || task.is_used[found->second] == 0);
  task.base_at = is_free ? found->second : 0;
  return is_free;
}

// What is left over of the base must be emptiable (cos-group-emptiable), but for a choice.
axsParticleRestriction::Answer axsParticleRestriction::end_of(Task const& task)
{
  if (task.rule != Rule::recurse && task.rule != Rule::recurse_unordered)
    return Answer::yes;
  for (std::size_t i = 0; i < task.base_parts.size(); ++i)
    if (task.is_used[i] == 0 && total_range(task.base_parts[i]).min != 0)
      return Answer::no;
  return Answer::yes;
}

void axsParticleRestriction::take(Task& task, bool fits)
{
  if (fits)
  {
    if (!task.is_used.empty())
      task.is_used[task.base_at] = 1;
    ++task.at;
    bool const is_in_order = task.rule == Rule::recurse || task.rule == Rule::recurse_lax;
    bool const takes_more = task.rule == Rule::recurse_lax && is_pointless_choice(task.base_parts[task.base_at]);
    if (!takes_more)
      task.base_at = is_in_order ? task.base_at + 1 : 0;
    task.has_looked_by_name = false;
    return;
  }
  task.has_failed = task.rule == Rule::each_in_wildcard ||
                    (task.rule == Rule::recurse && total_range(task.base_parts[task.base_at]).min != 0);
  bool const was_by_name = !task.names.empty() && task.parts[task.at].kind == Kind::element &&
                           task.base_parts[task.base_at].kind == Kind::element;
  task.base_at = was_by_name ? 0 : task.base_at + 1;
}

// Of the element, or the substitution group that it is the head of, the declaration of that name; null if there is none.
axsElementDecl const* axsParticleRestriction::member_of(View const& view, axsSchemaName const& name)
{
  if (view.element->name == name)
    return view.element;
  std::uint32_t const symbol = models.symbols().find(name.name_space, name.local);
  bool const is_member = symbol != axsSymbols::none && models.names_of(*view.element).has(symbol);
  return view.kind == Kind::choice && is_member ? models.symbols().global(symbol) : nullptr;
}

// rcase-NameAndTypeOK, but for the numbers of occurrences
bool axsParticleRestriction::is_element_right(View const& restricted, View const& base)
{
  axsElementDecl const& own = *restricted.element;
  axsElementDecl const* const member = member_of(base, own.name);
  if (member == nullptr)
    return false;
  axsElementDecl const& other = *member;
  using Constraint = axsValueConstraint::Kind;
  if (own.is_nillable && !other.is_nillable)
    return false;
  bool const is_fixed = other.constraint.kind == Constraint::fixed;
  if (is_fixed && (own.constraint.kind != Constraint::fixed || own.constraint.bytes != other.constraint.bytes))
    return false;
  auto const is_known = [&](axsIdentityConstraint const* constraint)
  {
    return std::find(other.identity_constraints.begin(), other.identity_constraints.end(), constraint) !=
           other.identity_constraints.end();
  };
  if (!std::all_of(own.identity_constraints.begin(), own.identity_constraints.end(), is_known))
    return false;
  if ((other.block & ~own.block) != 0)
    return false;
  axsDerivationSet const excluded = axsDerivationExtension | axsDerivationList | axsDerivationUnion;
  return axsTypeDerivation::is_derived(own.type, other.type, excluded);
}
