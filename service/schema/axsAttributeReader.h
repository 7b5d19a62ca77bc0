#pragma once

#include "axsNamespaceList.h"
#include "axsSchemaContext.h"
#include "axsSimpleTypeReader.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

/// Makes attribute declarations, uses and groups out of schema documents (Part 1, 3.2.2, 3.5.2, 3.6.2, 3.10.2).
class axsAttributeReader
{
public:
  axsAttributeReader(axsSchemaContext& shared, axsSimpleTypeReader& types);

  /// Fills the declaration of a global attribute.
  void fill(axsSchemaSymbol& symbol);

  /// Makes the group, and before it those that it refers to.
  void make_group(axsSchemaSymbol& symbol);

  /// The attributes that an element declares, one of a type or a derivation.
  axsAttributeSet collect(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// What xs:any or xs:anyAttribute says.
  static axsWildcard wildcard(axsSchemaUnit const& unit, axsSchemaElement const& element);

private:
  using Groups = std::vector<axsSchemaSymbol*>;
  using Uses = std::vector<axsAttributeUse>;

  // What two lists have in common.
  struct Common
  {
    axsNamespaceList left;
    axsNamespaceList right;
    axsNamespaceList both;
  };

  Groups groups_of(axsSchemaUnit const& unit, axsSchemaElement const& element);
  axsAttributeSet collect_direct(axsSchemaUnit const& unit, axsSchemaElement const& element, Groups const& groups);
  void add_use(axsAttributeSet& set, Uses& direct, axsSchemaUnit const& unit, axsSchemaElement const& element);
  void add_constraint_of(axsAttributeUse& use, axsAttributeDecl const& decl, axsSchemaElement const& element);
  static void add_id(axsAttributeSet& set, axsAttributeDecl const& decl);
  void check_ids(axsSchemaSymbol const& group, Groups const& groups);
  void intersect(axsAttributeSet& set, axsWildcard const& other, axsSchemaElement const& reference);
  std::optional<axsWildcard> common(axsWildcard const& left, axsWildcard const& right);
  axsAttributeUses unite(Uses const& direct, std::vector<axsAttributeUses const*> const& groups);
  axsAttributeDecl* local(axsSchemaUnit const& unit, axsSchemaElement const& element);
  axsSimpleType const* type_of(axsSchemaUnit const& unit, axsSchemaElement const& element);
  void check(axsAttributeDecl const& decl);

  axsSchemaContext& context;
  axsSimpleTypeReader& simple_types;
  std::map<std::pair<void const*, void const*>, Common> known_common; // by the identities of the lists
};
