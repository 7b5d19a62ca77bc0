#include "axsNamespaceConstraint.h"

#include <algorithm>
#include <iterator>

namespace
{
using Namespaces = axsWildcard::Namespaces;
using Spaces = std::vector<std::string>;

bool has(Spaces const& sorted, std::string_view name_space)
{
  auto const at = std::lower_bound(sorted.begin(), sorted.end(), name_space);
  return at != sorted.end() && *at == name_space;
}

bool is_same(axsWildcard const& left, axsWildcard const& right)
{
  return left.kind == right.kind && left.spaces == right.spaces;
}

axsWildcard with(axsWildcard const& like, Namespaces kind, Spaces spaces)
{
  axsWildcard made = like;
  made.kind = kind;
  made.spaces = std::move(spaces);
  return made;
}

axsWildcard not_absent(axsWildcard const& like)
{
  return with(like, Namespaces::not_one, {std::string()});
}

// The union of a negation with a set, which is `listed`.
std::optional<axsWildcard> united_with_set(axsWildcard const& like, std::string const& negated, Spaces const& listed)
{
  bool const has_absent = has(listed, std::string_view());
  if (negated.empty())
    return has_absent ? with(like, Namespaces::any, {}) : not_absent(like);
  if (!has(listed, negated))
    return has_absent ? std::nullopt : std::optional(with(like, Namespaces::not_one, {negated}));
  return has_absent ? with(like, Namespaces::any, {}) : not_absent(like);
}

axsWildcard intersected_with_set(axsWildcard const& like, std::string const& negated, Spaces const& listed)
{
  Spaces left;
  std::copy_if(listed.begin(), listed.end(), std::back_inserter(left),
    [&](std::string const& space) { return !space.empty() && space != negated; });
  return with(like, Namespaces::one_of, std::move(left));
}
}

bool axsNamespaceConstraint::allows(axsWildcard const& wildcard, std::string_view name_space) noexcept
{
  switch (wildcard.kind)
  {
  case Namespaces::any:
    return true;
  case Namespaces::not_one:
    return !name_space.empty() && name_space != wildcard.spaces.front();
  case Namespaces::one_of:
    return has(wildcard.spaces, name_space);
  }
  return false;
}

bool axsNamespaceConstraint::is_subset(axsWildcard const& narrow, axsWildcard const& wide)
{
  if (wide.kind == Namespaces::any)
    return true;
  if (narrow.kind == Namespaces::any)
    return false;
  if (narrow.kind == Namespaces::not_one)
    return wide.kind == Namespaces::not_one && (narrow.spaces == wide.spaces || wide.spaces.front().empty());
  return std::all_of(
    narrow.spaces.begin(), narrow.spaces.end(), [&](std::string const& space) { return allows(wide, space); });
}

std::optional<axsWildcard> axsNamespaceConstraint::united(axsWildcard const& left, axsWildcard const& right)
{
  if (is_same(left, right))
    return left;
  if (left.kind == Namespaces::any || right.kind == Namespaces::any)
    return with(left, Namespaces::any, {});
  if (left.kind == Namespaces::not_one && right.kind == Namespaces::not_one)
    return not_absent(left);
  if (left.kind == Namespaces::not_one)
    return united_with_set(left, left.spaces.front(), right.spaces);
  if (right.kind == Namespaces::not_one)
    return united_with_set(left, right.spaces.front(), left.spaces);
  Spaces all;
  std::set_union(
    left.spaces.begin(), left.spaces.end(), right.spaces.begin(), right.spaces.end(), std::back_inserter(all));
  return with(left, Namespaces::one_of, std::move(all));
}

std::optional<axsWildcard> axsNamespaceConstraint::intersected(axsWildcard const& left, axsWildcard const& right)
{
  if (is_same(left, right) || right.kind == Namespaces::any)
    return left;
  if (left.kind == Namespaces::any)
    return with(left, right.kind, right.spaces);
  if (left.kind == Namespaces::not_one && right.kind == Namespaces::not_one)
  {
    if (left.spaces.front().empty())
      return with(left, Namespaces::not_one, right.spaces);
    return right.spaces.front().empty() ? std::optional(left) : std::nullopt;
  }
  if (left.kind == Namespaces::not_one)
    return intersected_with_set(left, left.spaces.front(), right.spaces);
  if (right.kind == Namespaces::not_one)
    return intersected_with_set(left, right.spaces.front(), left.spaces);
  Spaces both;
  std::set_intersection(
    left.spaces.begin(), left.spaces.end(), right.spaces.begin(), right.spaces.end(), std::back_inserter(both));
  return with(left, Namespaces::one_of, std::move(both));
}
