#include "axsContentModels.h"

#include "axsComplexType.h"
#include "axsContentAutomaton.h"
#include "axsElementDecl.h"
#include "axsSubstitution.h"
#include "axsWildcard.h"

#include <algorithm>
#include <unordered_set>

namespace
{
// Numbers of occurrences that are too large are as good as none.
std::uint64_t product(std::uint64_t left, std::uint64_t right) noexcept
{
  if (left == 0 || right == 0)
    return 0;
  return left > axsParticle::unbounded / right ? axsParticle::unbounded : left * right;
}

// Whether (x{m,n}){p,q} may be written x{mp,nq}: whether the numbers that p to q times m to n make leave none out.
bool is_without_gaps(axsContentItem const& inner, axsParticle const& outer) noexcept
{
  if (outer.min_occurs == outer.max_occurs || inner.min <= 1)
    return true;
  if (outer.min_occurs == 0)
    return false;
  std::uint64_t const end = product(inner.max, outer.min_occurs);
  return end == axsParticle::unbounded || product(inner.min, outer.min_occurs + 1) <= end + 1;
}

void set_occurrence(axsContentItem& item, std::uint64_t min, std::uint64_t max, bool term_is_nullable) noexcept
{
  item.min = term_is_nullable ? 0 : min;
  item.max = max;
  item.nullable = item.min == 0;
}

// A sequence that occurs once needs no group around it in which that is counted.
axsContentGroup const& without_wrapping(axsContentGroup const& top) noexcept
{
  if (top.items.empty() || top.items.front().group == nullptr)
    return top;
  axsContentItem const& only = top.items.front();
  bool const occurs_once = only.max == 1 && (only.min == 1 || only.group->nullable);
  return occurs_once && only.group->is_sequence() ? *only.group : top;
}

bool allows_global(axsElementDecl const& head, axsElementDecl const& member) noexcept
{
  return &head == &member || axsSubstitution::is_allowed(member, head);
}
}

axsContentModels::axsContentModels(std::vector<axsElementDecl const*> const& globals) : names(globals)
{
  std::unordered_set<axsComplexType const*> seen;
  for (axsElementDecl const* const decl : globals)
  {
    is_guarded = is_guarded || decl->block != 0;
    for (axsComplexType const* type = decl->type.complex; type != nullptr && seen.insert(type).second;
         type = type->base.complex)
      is_guarded = is_guarded || type->block != 0;
  }
}

axsContentModels::~axsContentModels() = default;

std::shared_ptr<axsContentAutomaton const> axsContentModels::compile(
  axsParticle const& particle, axsContentProblem& problem)
{
  if (particle.group != nullptr)
    compile_groups(*particle.group, problem);
  tops.emplace_back();
  add_item(particle, tops.back());
  complete(tops.back(), problem);
  sets.erase(&tops.back());
  return std::make_shared<axsContentAutomaton const>(without_wrapping(tops.back()), names);
}

// Groups that refer to themselves (mg-props-correct.2) are left out of themselves.
void axsContentModels::compile_groups(axsModelGroup const& outermost, axsContentProblem& problem)
{
  struct Open
  {
    axsModelGroup const* group;
    std::size_t next;
  };
  std::vector<Open> open;
  auto const enter = [&](axsModelGroup const& group)
  {
    if (groups.emplace(&group, std::make_unique<axsContentGroup>()).second)
      open.push_back({&group, 0});
  };
  enter(outermost);
  while (!open.empty())
  {
    axsModelGroup const& group = *open.back().group;
    if (open.back().next < group.particles.size())
    {
      axsParticle const& particle = group.particles[open.back().next++];
      if (particle.group != nullptr && particle.max_occurs != 0)
        enter(*particle.group);
      continue;
    }
    axsContentGroup& made = *groups.at(&group);
    made.compositor = group.compositor;
    made.items.reserve(group.particles.size());
    for (axsParticle const& particle : group.particles)
      add_item(particle, made);
    complete(made, problem);
    open.pop_back();
  }
}

void axsContentModels::add_item(axsParticle const& particle, axsContentGroup& group)
{
  if (particle.max_occurs == 0)
    return;
  axsContentItem item;
  item.particle = &particle;
  if (particle.element != nullptr)
    item.names = &names_of(*particle.element);
  else if (particle.wildcard != nullptr)
    item.wildcard = &wildcard_of(particle);
  else
    item.group = groups.at(particle.group).get();
  bool const is_complete = item.group == nullptr || sets.count(item.group) != 0;
  if (!is_complete)
    return;
  axsContentItem const* const only =
    item.group != nullptr && item.group->items.size() == 1 ? &item.group->items.front() : nullptr;
  if (only != nullptr && is_without_gaps(*only, particle))
  {
    item = *only;
    item.is_weak = false;
    set_occurrence(item, product(only->min, particle.min_occurs), product(only->max, particle.max_occurs), false);
  }
  else
    set_occurrence(item, particle.min_occurs, particle.max_occurs, item.group != nullptr && item.group->nullable);
  group.items.push_back(item);
}

void axsContentModels::complete(axsContentGroup& group, axsContentProblem& problem)
{
  auto const count = static_cast<std::uint32_t>(group.items.size());
  bool const is_choice = group.compositor == axsModelGroup::Compositor::choice;
  auto const is_nullable = [](axsContentItem const& item) { return item.nullable; };
  group.nullable = is_choice ? std::any_of(group.items.begin(), group.items.end(), is_nullable)
                             : std::all_of(group.items.begin(), group.items.end(), is_nullable);
  group.next_required.assign(count + 1, count);
  for (std::uint32_t i = count; i-- > 0;)
  {
    group.next_required[i] = group.items[i].nullable ? group.next_required[i + 1] : i;
    group.required += group.items[i].nullable ? 0U : 1U;
  }
  sets[&group] = axsAttribution(*this, group, problem).run();
  group.index.build(group);
}

axsContentNames const& axsContentModels::names_of(axsElementDecl const& decl)
{
  auto const [at, is_new] = names_of_decls.try_emplace(&decl);
  axsContentNames& made = at->second;
  if (!is_new)
    return made;
  made.decl = &decl;
  made.symbol = names.add(decl.name);
  bool const is_head = names.global(made.symbol) == &decl;
  std::uint32_t const last = is_head ? names.last_of_group(made.symbol) : made.symbol;
  if (!is_guarded)
    made.spans.push_back({made.symbol, last});
  else
    for (std::uint32_t symbol = made.symbol; symbol <= last; ++symbol)
    {
      if (symbol != made.symbol && !allows_global(decl, *names.global(symbol)))
        continue;
      if (made.spans.empty() || made.spans.back().last + 1 != symbol)
        made.spans.push_back({symbol, symbol});
      made.spans.back().last = symbol;
    }
  made.lowest = made.spans.front().first;
  made.highest = made.spans.back().last;
  for (axsContentNames::Span const& span : made.spans)
    for (std::uint32_t symbol = span.first; symbol <= span.last; ++symbol)
      if (std::uint32_t const space = names.space_of(symbol); made.spaces.empty() || made.spaces.back() != space)
        made.spaces.push_back(space);
  std::sort(made.spaces.begin(), made.spaces.end());
  made.spaces.erase(std::unique(made.spaces.begin(), made.spaces.end()), made.spaces.end());
  made.spaces.shrink_to_fit(); // groups that contain each other would keep room for all members of all
  return made;
}

axsContentWildcard const& axsContentModels::wildcard_of(axsParticle const& particle)
{
  axsWildcard const& wildcard = *particle.wildcard;
  auto const [at, is_new] = wildcards.try_emplace(&wildcard);
  axsContentWildcard& made = at->second;
  if (!is_new)
    return made;
  made.wildcard = &wildcard;
  made.is_broad = wildcard.kind != axsWildcard::Namespaces::one_of;
  if (wildcard.kind != axsWildcard::Namespaces::any)
    for (std::string_view const space : wildcard.spaces.names())
      made.spaces.push_back(names.add_space(space));
  if (wildcard.kind == axsWildcard::Namespaces::not_one)
    made.spaces.push_back(names.add_space({}));
  std::sort(made.spaces.begin(), made.spaces.end());
  made.spaces.erase(std::unique(made.spaces.begin(), made.spaces.end()), made.spaces.end());
  if (made.is_broad)
    return made;
  axsContentItem& item = items_of_wildcards.emplace_back();
  item.wildcard = &made;
  item.particle = &particle;
  std::vector<axsSymbolSet::Span> spans;
  for (std::uint32_t const space : made.spaces)
    spans.push_back({space, space, &item});
  made.reach.add(std::move(spans));
  return made;
}
