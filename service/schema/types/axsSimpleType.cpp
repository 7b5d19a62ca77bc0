#include "axsSimpleType.h"

#include "axsPattern.h"
#include "axsTypeChecker.h"
#include "axsTypeFault.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

axsSimpleType::~axsSimpleType() = default;

std::vector<axsSimpleType const*> const& axsSimpleType::members() const noexcept
{
  static std::vector<axsSimpleType const*> const none;
  return own_members == nullptr ? none : *own_members;
}

bool axsSimpleType::has_facet(axsFacetKind kind) const noexcept
{
  return (set_facets & bit(kind)) != 0;
}

bool axsSimpleType::is_fixed(axsFacetKind kind) const noexcept
{
  return (fixed_facets & bit(kind)) != 0;
}

std::string const& axsSimpleType::facet_text(axsFacetKind kind) const noexcept
{
  static std::string const none;
  for (FacetText const& facet : facet_texts)
    if (facet.kind == kind)
      return facet.text;
  return none;
}

// Part 1, 3.14.6 cos-st-derived-ok: by restriction from base to base, from anySimpleType, or into a union as one of its
// members.
bool axsSimpleType::is_derived_from(axsSimpleType const& ancestor, axsDerivationSet excluded) const
{
  if (this == &ancestor)
    return true;
  std::vector<axsSimpleType const*> wanted{&ancestor};
  std::unordered_set<axsSimpleType const*> seen;
  while (!wanted.empty())
  {
    axsSimpleType const& goal = *wanted.back();
    wanted.pop_back();
    if (!seen.insert(&goal).second)
      continue;
    if (is_restriction_of(goal, excluded))
      return true;
    wanted.insert(wanted.end(), goal.members().begin(), goal.members().end());
  }
  return false;
}

bool axsSimpleType::is_restriction_of(axsSimpleType const& ancestor, axsDerivationSet excluded) const noexcept
{
  for (axsSimpleType const* at = this; at != nullptr; at = at->own_base)
  {
    if (at == &ancestor)
      return true;
    if ((excluded & axsDerivationRestriction) != 0 ||
        (at->own_base != nullptr && (at->own_base->own_final & axsDerivationRestriction) != 0))
      return false;
  }
  return false;
}

bool axsSimpleType::check(std::string_view text, axsValueContext const& context, axsValue* value) const
{
  if (value == nullptr && quick.takes(text))
    return true;
  bool const is_valid = axsTypeChecker(context).check(*this, text, value).is_valid();
  if (!is_valid && value != nullptr)
    value->clear();
  return is_valid;
}

std::string axsSimpleType::fault(std::string_view text, axsValueContext const& context, char const** rule) const
{
  return axsTypeFault(*this, text, context).words(rule);
}

std::string axsSimpleType::shown_name() const
{
  if (own_name.empty())
    return own_name;
  return built_in ? "xs:" + own_name : "'" + own_name + "'";
}

std::string axsSimpleType::enumeration_text() const
{
  if (own_enumeration == nullptr || own_enumeration->shown.size() < own_enumeration->values.size())
    return "the values listed in the schema";
  std::string list;
  for (std::string const& value : own_enumeration->shown)
    list += (list.empty() ? "'" : ", '") + axsTypeFault::shown(value) + "'";
  return list;
}

void axsSimpleType::inherit(axsSimpleType const& base)
{
  own_item = base.own_item;
  own_members = base.own_members;
  own_variety = base.own_variety;
  own_primitive = base.own_primitive;
  own_white_space = base.own_white_space;
  form = base.form;
  own_role = base.own_role;
  set_facets = base.set_facets;
  fixed_facets = base.fixed_facets;
  std::copy(std::begin(base.lengths), std::end(base.lengths), lengths);
  total_digits = base.total_digits;
  fraction_digits = base.fraction_digits;
  min_bound = base.min_bound;
  max_bound = base.max_bound;
  facet_texts = base.facet_texts;
  own_enumeration = base.own_enumeration;
  with_patterns = base.with_patterns;
  contain(base);
}

void axsSimpleType::make_list(axsSimpleType const& of)
{
  own_variety = Variety::list;
  own_white_space = axsWhiteSpace::collapse;
  fixed_facets = bit(axsFacetKind::white_space);
  facet_texts.push_back({axsFacetKind::white_space, "collapse"});
  own_item = &of;
  contain(of);
  contains_list = true;
}

void axsSimpleType::contain(axsSimpleType const& part) noexcept
{
  contains_id = contains_id || part.contains_id;
  contains_references = contains_references || part.contains_references;
  contains_notation = contains_notation || part.contains_notation;
  contains_names = contains_names || part.contains_names;
  contains_list = contains_list || part.contains_list;
}
