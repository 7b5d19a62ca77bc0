#include "axsPointlessGroups.h"

#include "axsModelGroup.h"
#include "axsParticle.h"

#include <algorithm>
#include <cstddef>
#include <vector>

bool axsPointlessGroups::is_empty(axsParticle const& particle)
{
  if (particle.max_occurs == 0)
    return true;
  if (particle.group == nullptr || !has_none(*particle.group))
    return false;
  return particle.group->compositor != axsModelGroup::Compositor::choice || particle.min_occurs == 0;
}

// Inner groups first.
bool axsPointlessGroups::has_none(axsModelGroup const& outermost)
{
  std::vector<axsModelGroup const*> open{&outermost};
  while (!open.empty())
  {
    axsModelGroup const& group = *open.back();
    std::size_t const count = open.size();
    bool const is_known = known.count(&group) != 0;
    for (axsParticle const& particle : group.particles)
      if (!is_known && particle.max_occurs != 0 && particle.group != nullptr && known.count(particle.group) == 0)
        open.push_back(particle.group);
    if (open.size() != count)
      continue;
    if (!is_known)
      known[&group] = std::all_of(group.particles.begin(), group.particles.end(),
        [this](axsParticle const& particle) { return is_empty(particle); });
    open.pop_back();
  }
  return known.at(&outermost);
}

axsParticle const* axsPointlessGroups::only_of(axsModelGroup const& group)
{
  axsParticle const* only = nullptr;
  for (axsParticle const& particle : group.particles)
  {
    if (is_empty(particle))
      continue;
    if (only != nullptr)
      return nullptr;
    only = &particle;
  }
  return only;
}

axsParticle const& axsPointlessGroups::innermost(axsParticle const& particle)
{
  axsParticle const* at = &particle;
  while (at->group != nullptr && at->min_occurs == 1 && at->max_occurs == 1)
  {
    axsParticle const* const only = only_of(*at->group);
    if (only == nullptr)
      break;
    at = only;
  }
  return *at;
}
