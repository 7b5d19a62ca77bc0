#include "axsSimpleTypes.h"

#include "axsBuiltInTypes.h"
#include "axsPattern.h"
#include "axsRestriction.h"

#include <string>
#include <unordered_set>

using Variety = axsSimpleType::Variety;

axsSimpleTypes::axsSimpleTypes() = default;
axsSimpleTypes::~axsSimpleTypes() = default;

axsSimpleType& axsSimpleTypes::add(axsTypeHead const& head, axsSimpleType const& base)
{
  made.push_back(std::unique_ptr<axsSimpleType>(new axsSimpleType));
  axsSimpleType& type = *made.back();
  type.own_name = head.name;
  type.own_name_space = head.name_space;
  type.own_final = head.final_set;
  type.own_base = &base;
  return type;
}

axsSimpleType const& axsSimpleTypes::restrict(axsTypeHead const& head, axsSimpleType const& base,
  std::vector<axsFacet> const& facets, axsTypeDiagnostics& diagnostics)
{
  if ((base.final_set() & axsDerivationRestriction) != 0)
    diagnostics.report(
      head.place, "st-props-correct.3", base.shown_name() + " is final: no type may be derived from it by restriction");
  if (base.variety() == Variety::ur)
    diagnostics.report(head.place, "cos-st-restricts.1.1", "xs:anySimpleType may not be restricted");
  axsSimpleType& type = add(head, base);
  type.inherit(base);
  axsRestriction(type, diagnostics, head.place).add_all(facets);
  type.quick = axsQuickCheck(type);
  return type;
}

axsSimpleType const& axsSimpleTypes::list(
  axsTypeHead const& head, axsSimpleType const& item, axsTypeDiagnostics& diagnostics)
{
  if ((item.final_set() & axsDerivationList) != 0)
    diagnostics.report(head.place, "cos-st-restricts.2.3.1.1",
      item.shown_name() + " is final: it may not be the type of a list's items");
  if (item.contains_list)
    diagnostics.report(head.place, "cos-list-of-atomic", "the items of a list may not be lists");
  axsSimpleType& type = add(head, axsBuiltInTypes::any_simple_type());
  type.make_list(item.contains_list ? axsBuiltInTypes::any_simple_type() : item);
  return type;
}

axsSimpleType const& axsSimpleTypes::union_of(
  axsTypeHead const& head, std::vector<axsSimpleType const*> const& members, axsTypeDiagnostics& diagnostics)
{
  axsSimpleType& type = add(head, axsBuiltInTypes::any_simple_type());
  type.own_variety = Variety::union_of;
  type.own_white_space = axsWhiteSpace::collapse;
  auto kept = std::make_shared<std::vector<axsSimpleType const*>>();
  std::unordered_set<axsSimpleType const*> seen;
  for (axsSimpleType const* const member : members)
  {
    if ((member->final_set() & axsDerivationUnion) != 0)
      diagnostics.report(
        head.place, "cos-st-restricts.3.3.1.1", member->shown_name() + " is final: it may not be a member of a union");
    if (!seen.insert(member).second)
      continue;
    kept->push_back(member);
    type.contain(*member);
  }
  type.own_members = std::move(kept);
  return type;
}
