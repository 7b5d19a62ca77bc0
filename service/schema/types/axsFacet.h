#pragma once

#include <cstdint>
#include <string_view>

class axsValueContext;

/// The constraining facets (XML Schema Part 2, 4.3), in the order in which that has them.
enum class axsFacetKind : unsigned char
{
  length,
  min_length,
  max_length,
  pattern,
  enumeration,
  white_space,
  max_inclusive,
  max_exclusive,
  min_exclusive,
  min_inclusive,
  total_digits,
  fraction_digits
};

/// A facet as a schema document gives it. Owns nothing: all must live until the type is made.
struct axsFacet
{
  axsFacetKind kind = axsFacetKind::length;
  bool fixed = false;
  std::string_view value; // as written, character and entity references replaced
  // The namespaces in scope at the facet, for an enumeration of QNames; null where there are none.
  axsValueContext const* context = nullptr;
  // Given back with what is wrong with the facet; means nothing here.
  std::uint64_t place = 0;
};

namespace axsFacets
{
/// The name of the element that gives the facet, as "minLength".
std::string_view name(axsFacetKind kind) noexcept;

/// Finds the facet of that name. Whether there is one.
bool find(std::string_view name, axsFacetKind& kind) noexcept;
}
