#include "axsIdentityMatcher.h"

#include "axsKnownName.h"
#include "axsName.h"

#include <algorithm>

namespace
{
using Step = axsIdentityPath::Step;

bool fits(Step const& step, std::string_view name_space, std::string_view local) noexcept
{
  if (step.any_name_space)
    return true;
  return (step.any_local || step.name.local == local) && step.name.name_space == name_space;
}
}

axsIdentityMatcher::axsIdentityMatcher(axsIdentityPath const& path)
{
  for (axsIdentityPath::Alternative const& given : path.alternatives)
  {
    Alternative made{given.from_descendants, {}, nullptr};
    for (Step const& step : given.steps)
      if (step.kind == Step::Kind::child)
        made.children.push_back(&step);
      else if (step.kind == Step::Kind::attribute)
        made.attribute = &step;
    attributes = attributes || made.attribute != nullptr;
    deep = deep || made.from_descendants;
    deep_only = deep_only && made.from_descendants;
    steps = std::max(steps, made.children.size());
    alternatives.push_back(std::move(made));
  }
}

// Whether the last elements that are open are those of its steps; there are as many.
bool axsIdentityMatcher::has_names(
  Alternative const& alternative, std::vector<axsKnownName const*> const& open) noexcept
{
  std::size_t const count = alternative.children.size();
  for (std::size_t i = 0; i < count; ++i)
  {
    axsKnownName const& name = *open[open.size() - count + i];
    if (!fits(*alternative.children[i], name.name_space, name.name->local()))
      return false;
  }
  return true;
}

bool axsIdentityMatcher::is_at(
  Alternative const& alternative, std::vector<axsKnownName const*> const& open, std::size_t from) noexcept
{
  std::size_t const below = open.size() - 1 - from;
  std::size_t const count = alternative.children.size();
  bool const is_within = alternative.from_descendants ? below >= count : below == count;
  return is_within && has_names(alternative, open);
}

bool axsIdentityMatcher::is_deep_at(
  Alternative const& alternative, std::vector<axsKnownName const*> const& open) noexcept
{
  return alternative.from_descendants && open.size() > alternative.children.size() && has_names(alternative, open);
}

std::size_t axsIdentityMatcher::innermost_origin(std::vector<axsKnownName const*> const& open) const
{
  std::size_t level = 0;
  for (Alternative const& alternative : alternatives)
    if (alternative.attribute == nullptr && is_deep_at(alternative, open))
      level = std::max(level, open.size() - alternative.children.size());
  return level;
}

bool axsIdentityMatcher::leads_to_element(std::vector<axsKnownName const*> const& open, std::size_t from) const
{
  return std::any_of(alternatives.begin(), alternatives.end(),
    [&](Alternative const& alternative) { return alternative.attribute == nullptr && is_at(alternative, open, from); });
}

bool axsIdentityMatcher::leads_near_to_element(std::vector<axsKnownName const*> const& open, std::size_t from) const
{
  return std::any_of(alternatives.begin(), alternatives.end(),
    [&](Alternative const& alternative) { return !alternative.from_descendants && is_at(alternative, open, from); });
}

bool axsIdentityMatcher::leads_to_attribute(std::vector<axsKnownName const*> const& open, std::size_t from,
  std::string_view name_space, std::string_view local) const
{
  return std::any_of(alternatives.begin(), alternatives.end(),
    [&](Alternative const& alternative)
    {
      return alternative.attribute != nullptr && fits(*alternative.attribute, name_space, local) &&
             is_at(alternative, open, from);
    });
}

bool axsIdentityMatcher::leads_deep_to_attribute(
  std::vector<axsKnownName const*> const& open, std::string_view name_space, std::string_view local) const
{
  return std::any_of(alternatives.begin(), alternatives.end(),
    [&](Alternative const& alternative)
    {
      return alternative.attribute != nullptr && fits(*alternative.attribute, name_space, local) &&
             is_deep_at(alternative, open);
    });
}
