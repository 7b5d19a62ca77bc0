#include "axsFacet.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{
// In the order of axsFacetKind.
std::string_view const names[] = {"length", "minLength", "maxLength", "pattern", "enumeration", "whiteSpace",
  "maxInclusive", "maxExclusive", "minExclusive", "minInclusive", "totalDigits", "fractionDigits"};
}

std::string_view axsFacets::name(axsFacetKind kind) noexcept
{
  return names[static_cast<std::size_t>(kind)];
}

bool axsFacets::find(std::string_view name, axsFacetKind& kind) noexcept
{
  auto const* const found = std::find(std::begin(names), std::end(names), name);
  if (found == std::end(names))
    return false;
  kind = static_cast<axsFacetKind>(found - std::begin(names));
  return true;
}
