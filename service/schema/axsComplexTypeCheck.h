#pragma once

#include "axsSchemaContext.h"

class axsGroupCheck;

/// The constraints on complex types (Part 1, 3.4.6), when all components are there.
class axsComplexTypeCheck
{
public:
  axsComplexTypeCheck(axsSchemaContext& shared, axsGroupCheck& checked_groups);

  void check(axsComplexType const& type);

  /// Clauses 2 to 4 of derivation-ok-restriction, of which src-redefine.7 makes use, too. `what` begins the messages.
  void check_attributes(axsAttributeUses const& uses, std::optional<axsWildcard> const& wildcard,
    axsAttributeUses const& base_uses, std::optional<axsWildcard> const& base_wildcard, axsSchemaPlace place);

private:
  void check_ids(axsComplexType const& type);
  axsAttributeUse const* other_id(axsComplexType const& type, std::size_t number, axsAttributeUse const* first);
  void check_extension(axsComplexType const& type);
  void check_restriction(axsComplexType const& type);
  void check_restricted_content(axsComplexType const& type, axsComplexType const& base);
  void check_use(axsAttributeUse const& use, axsAttributeUse const& base);
  void check_wildcard(axsWildcard const& wildcard, std::optional<axsWildcard> const& base);

  axsSchemaContext& context;
  axsGroupCheck& groups;
};
