#pragma once

#include "axsFacet.h"
#include "axsSimpleType.h"
#include "axsTypeDiagnostics.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Gives a type that restricts another the facets of the step (XML Schema Part 2, 4.3) and checks the constraints on them.
/// A facet against which there is something is reported and has no effect.
class axsRestriction
{
public:
  /// `made` begins with what it has from its base.
  axsRestriction(axsSimpleType& type, axsTypeDiagnostics& out, std::uint64_t place);

  void add_all(std::vector<axsFacet> const& facets);

private:
  void add(axsFacet const& facet);
  void add_length(axsFacet const& facet);
  void add_digits(axsFacet const& facet);
  void add_white_space(axsFacet const& facet);
  void add_bound(axsFacet const& facet);
  void add_pattern(axsFacet const& facet);
  void add_enumeration(axsFacet const& facet);

  bool is_applicable(axsFacetKind kind) const noexcept;
  bool is_single(axsFacet const& facet);
  bool read_bound(axsFacet const& facet, std::string& bytes);
  bool is_bound_within_base(axsFacet const& facet, std::string const& bytes);
  bool is_length_within_base(axsFacet const& facet, std::size_t length);
  bool keeps_fixed(axsFacet const& facet, bool is_same);
  void check_lengths();
  void check_bounds();
  void check_digits();
  void finish_patterns();
  void finish_enumeration();

  void set(axsFacet const& facet);
  void unset(axsFacetKind kind);
  bool is_own(axsFacetKind kind) const noexcept;
  std::uint64_t place_of(axsFacetKind kind) const noexcept;
  void report(std::uint64_t place, char const* rule, std::string text);
  void report(axsFacet const& facet, char const* rule, std::string const& text);

  axsSimpleType& made;
  axsSimpleType const& base;
  axsTypeDiagnostics& diagnostics;
  std::uint64_t type_place;
  std::uint64_t places[12] = {};
  unsigned own_facets = 0;
  std::vector<std::string_view> patterns;
  std::shared_ptr<axsSimpleType::Enumeration> values;
  axsValue value; // of an enumeration, kept for the next one
};
