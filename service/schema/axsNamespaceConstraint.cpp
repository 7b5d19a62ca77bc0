#include "axsNamespaceConstraint.h"

#include <utility>

namespace
{
using Namespaces = axsWildcard::Namespaces;
using Spaces = axsNamespaceList;

bool is_same(axsWildcard const& left, axsWildcard const& right)
{
  return left.kind == right.kind && left.spaces == right.spaces;
}

// The one that a negation is about.
std::string_view negated_by(axsWildcard const& wildcard)
{
  return wildcard.spaces.names().front();
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
  return with(like, Namespaces::not_one, Spaces({std::string()}));
}

// The union of a negation with a set.
std::optional<axsWildcard> united_with_set(axsWildcard const& like, axsWildcard const& negation, Spaces const& listed)
{
  bool const has_absent = listed.has({});
  if (negation.spaces.has({}))
    return has_absent ? with(like, Namespaces::any, {}) : not_absent(like);
  if (!listed.has(negated_by(negation)))
    return has_absent ? std::nullopt : std::optional(with(like, Namespaces::not_one, negation.spaces));
  return has_absent ? with(like, Namespaces::any, {}) : not_absent(like);
}

axsWildcard intersected_with_set(axsWildcard const& like, axsWildcard const& negation, Spaces const& listed)
{
  return with(like, Namespaces::one_of, listed.without({}).without(negated_by(negation)));
}
}

bool axsNamespaceConstraint::allows(axsWildcard const& wildcard, std::string_view name_space) noexcept
{
  switch (wildcard.kind)
  {
  case Namespaces::any:
    return true;
  case Namespaces::not_one:
    return !name_space.empty() && !wildcard.spaces.has(name_space);
  case Namespaces::one_of:
    return wildcard.spaces.has(name_space);
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
    return wide.kind == Namespaces::not_one && (narrow.spaces == wide.spaces || wide.spaces.has({}));
  if (wide.kind == Namespaces::one_of)
    return wide.spaces.has_all_of(narrow.spaces);
  return !narrow.spaces.has({}) && !narrow.spaces.has(negated_by(wide));
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
    return united_with_set(left, left, right.spaces);
  if (right.kind == Namespaces::not_one)
    return united_with_set(left, right, left.spaces);
  return with(left, Namespaces::one_of, left.spaces.with(right.spaces));
}

std::optional<axsWildcard> axsNamespaceConstraint::intersected(axsWildcard const& left, axsWildcard const& right)
{
  if (is_same(left, right) || right.kind == Namespaces::any)
    return left;
  if (left.kind == Namespaces::any)
    return with(left, right.kind, right.spaces);
  if (left.kind == Namespaces::not_one && right.kind == Namespaces::not_one)
  {
    if (left.spaces.has({}))
      return with(left, Namespaces::not_one, right.spaces);
    return right.spaces.has({}) ? std::optional(left) : std::nullopt;
  }
  if (left.kind == Namespaces::not_one)
    return intersected_with_set(left, left, right.spaces);
  if (right.kind == Namespaces::not_one)
    return intersected_with_set(left, right, left.spaces);
  return with(left, Namespaces::one_of, left.spaces.common_with(right.spaces));
}
