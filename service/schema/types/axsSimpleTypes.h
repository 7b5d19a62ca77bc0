#pragma once

#include "axsDerivation.h"
#include "axsFacet.h"
#include "axsSimpleType.h"
#include "axsTypeDiagnostics.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// What a simple type definition has beside its derivation. Owns nothing; an empty name is that of an anonymous type.
struct axsTypeHead
{
  std::string_view name_space;
  std::string_view name;
  axsDerivationSet final_set = 0;
  // Given back with what is wrong with the type; means nothing here.
  std::uint64_t place = 0;
};

/// Makes simple types by derivation and owns those it made, which may be derived from each other in any depth. Checks
/// the constraints on them (XML Schema Part 1, 3.14.6; Part 2, chapter 4) and reports each that is not kept; what is
/// returned is a type all the same, without what was wrong with it, so that what refers to it can be looked at too.
///
/// Types never change after they were made and may be shared between threads; making is for one thread at a time.
class axsSimpleTypes
{
public:
  axsSimpleTypes();
  axsSimpleTypes(axsSimpleTypes const&) = delete;
  axsSimpleTypes& operator=(axsSimpleTypes const&) = delete;
  ~axsSimpleTypes();

  /// A type derived by restriction, with the facets in the order of the document. Costs as much as the facets, whatever the
  /// depth of the base.
  axsSimpleType const& restrict(axsTypeHead const& head, axsSimpleType const& base, std::vector<axsFacet> const& facets,
    axsTypeDiagnostics& diagnostics);

  /// A type whose values are lists of values of `item`.
  axsSimpleType const& list(axsTypeHead const& head, axsSimpleType const& item, axsTypeDiagnostics& diagnostics);

  /// A type whose values are those of its members.
  axsSimpleType const& union_of(
    axsTypeHead const& head, std::vector<axsSimpleType const*> const& members, axsTypeDiagnostics& diagnostics);

private:
  axsSimpleType& add(axsTypeHead const& head, axsSimpleType const& base);

  std::vector<std::unique_ptr<axsSimpleType>> made;
};
