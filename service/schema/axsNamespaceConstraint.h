#pragma once

#include "axsWildcard.h"

#include <optional>
#include <string_view>

/// Operations on the {namespace constraint} of wildcards (Part 1, 3.10.6). Those that make one leave `process` and `place`
/// as the first has them.
namespace axsNamespaceConstraint
{
/// Whether names of that namespace are meant (cvc-wildcard-namespace).
bool allows(axsWildcard const& wildcard, std::string_view name_space) noexcept;

/// Whether all that `narrow` allows, `wide` allows too (cos-ns-subset).
bool is_subset(axsWildcard const& narrow, axsWildcard const& wide);

/// cos-aw-union and cos-aw-intersect; nothing where the result cannot be expressed.
std::optional<axsWildcard> united(axsWildcard const& left, axsWildcard const& right);
std::optional<axsWildcard> intersected(axsWildcard const& left, axsWildcard const& right);
}
