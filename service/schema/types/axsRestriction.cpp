#include "axsRestriction.h"

#include "axsDecimal.h"
#include "axsNoContext.h"
#include "axsPattern.h"
#include "axsTypeFault.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <utility>

using Kind = axsFacetKind;
using Order = axsValue::Order;

namespace
{
std::size_t const max_shown = 12;
std::size_t const largest = std::numeric_limits<std::size_t>::max();

constexpr unsigned bits(std::initializer_list<Kind> kinds)
{
  unsigned set = 0;
  for (Kind const kind : kinds)
    set |= 1u << static_cast<unsigned>(kind);
  return set;
}

unsigned const of_all = bits({Kind::pattern, Kind::white_space});
unsigned const of_lengths = bits({Kind::length, Kind::min_length, Kind::max_length});
unsigned const of_bounds = bits({Kind::max_inclusive, Kind::max_exclusive, Kind::min_exclusive, Kind::min_inclusive});
unsigned const of_digits = bits({Kind::total_digits, Kind::fraction_digits});
unsigned const of_values = bits({Kind::enumeration});

// Part 2, 4.1.5
unsigned applicable_facets(axsSimpleType const& type) noexcept
{
  if (type.variety() == axsSimpleType::Variety::union_of)
    return of_values | bits({Kind::pattern});
  if (type.variety() == axsSimpleType::Variety::list)
    return of_all | of_lengths | of_values;
  switch (type.primitive())
  {
  case axsPrimitive::none:
    return 0;
  case axsPrimitive::boolean:
    return of_all;
  case axsPrimitive::decimal:
    return of_all | of_values | of_bounds | of_digits;
  default:
    return of_all | of_values | (axsPrimitives::is_ordered(type.primitive()) ? of_bounds : of_lengths);
  }
}

bool is_bound(Kind kind) noexcept
{
  return kind >= Kind::max_inclusive && kind <= Kind::min_inclusive;
}

bool is_lower(Kind kind) noexcept
{
  return kind == Kind::min_inclusive || kind == Kind::min_exclusive;
}

bool is_exclusive(Kind kind) noexcept
{
  return kind == Kind::min_exclusive || kind == Kind::max_exclusive;
}

// A nonNegativeInteger; one too large for anything is the largest number.
bool read_count(std::string_view text, std::size_t& count)
{
  axsDecimal::Parts parts;
  if (!axsDecimal::parse(axsWhiteSpaces::trimmed(text), parts) || parts.has_point ||
      (parts.negative && parts.digits() > 0))
    return false;
  count = 0;
  for (char const c : parts.whole)
  {
    auto const digit = static_cast<std::size_t>(c - '0');
    if (count > (largest - digit) / 10)
    {
      count = largest;
      return true;
    }
    count = count * 10 + digit;
  }
  return true;
}

// The digits tell apart what is too large for anything.
int compared(std::size_t left, std::string_view left_text, std::size_t right, std::string_view right_text)
{
  if (left != right)
    return left < right ? -1 : 1;
  return left == largest ? axsDecimal::compare_counts(axsWhiteSpaces::trimmed(left_text), right_text) : 0;
}

std::string quoted(std::string_view text)
{
  return "'" + axsTypeFault::shown(text) + "'";
}

std::string name_of(axsSimpleType const& type)
{
  std::string const name = type.shown_name();
  return name.empty() ? "a type without a name" : name;
}
}

axsRestriction::axsRestriction(axsSimpleType& type, axsTypeDiagnostics& out, std::uint64_t place)
  : made(type),
    base(*type.base()),
    diagnostics(out),
    type_place(place)
{
}

void axsRestriction::add_all(std::vector<axsFacet> const& facets)
{
  for (axsFacet const& facet : facets)
    add(facet);
  check_lengths();
  check_bounds();
  check_digits();
  finish_patterns();
  finish_enumeration();
}

void axsRestriction::add(axsFacet const& facet)
{
  if (!is_applicable(facet.kind))
    return report(facet, "cos-applicable-facets", "does not apply to types made from " + name_of(base));
  if (facet.kind == Kind::pattern)
    return add_pattern(facet);
  if (facet.kind == Kind::enumeration)
    return add_enumeration(facet);
  if (!is_single(facet))
    return;
  if (facet.kind == Kind::white_space)
    return add_white_space(facet);
  if (is_bound(facet.kind))
    return add_bound(facet);
  if ((of_digits & 1u << static_cast<unsigned>(facet.kind)) != 0)
    return add_digits(facet);
  add_length(facet);
}

bool axsRestriction::is_applicable(Kind kind) const noexcept
{
  return (applicable_facets(made) & axsSimpleType::bit(kind)) != 0;
}

// Part 2, 4.3, src-single-facet-value
bool axsRestriction::is_single(axsFacet const& facet)
{
  if (!is_own(facet.kind))
    return true;
  report(facet, "src-single-facet-value", "is given twice");
  return false;
}

void axsRestriction::add_length(axsFacet const& facet)
{
  std::size_t length = 0;
  if (!read_count(facet.value, length))
    return report(facet, "cvc-datatype-valid.1.2.1", "must be a number of at least 0");
  std::size_t& own = made.lengths[static_cast<std::size_t>(facet.kind)];
  bool const is_same = compared(length, facet.value, own, base.facet_text(facet.kind)) == 0;
  if (!keeps_fixed(facet, is_same) || !is_length_within_base(facet, length))
    return;
  own = length;
  set(facet);
}

// length-valid-restriction, minLength-valid-restriction, maxLength-valid-restriction
bool axsRestriction::is_length_within_base(axsFacet const& facet, std::size_t length)
{
  if (!base.has_facet(facet.kind))
    return true;
  std::size_t const before = base.lengths[static_cast<std::size_t>(facet.kind)];
  int const order = compared(length, facet.value, before, base.facet_text(facet.kind));
  std::string const of_base = base.facet_text(facet.kind) + " of " + name_of(base) + ", which it restricts";
  if (facet.kind == Kind::length && order != 0)
    report(facet, "length-valid-restriction", "must be the " + of_base);
  else if (facet.kind == Kind::min_length && order < 0)
    report(facet, "minLength-valid-restriction", "must not be less than the " + of_base);
  else if (facet.kind == Kind::max_length && order > 0)
    report(facet, "maxLength-valid-restriction", "must not be greater than the " + of_base);
  else
    return true;
  return false;
}

void axsRestriction::add_digits(axsFacet const& facet)
{
  bool const is_total = facet.kind == Kind::total_digits;
  std::size_t count = 0;
  if (!read_count(facet.value, count) || (is_total && count == 0))
    return report(facet, "cvc-datatype-valid.1.2.1",
      is_total ? "must be a number of at least 1" : "must be a number of at least 0");
  std::size_t& own = is_total ? made.total_digits : made.fraction_digits;
  int const order = compared(count, facet.value, own, base.facet_text(facet.kind));
  if (!keeps_fixed(facet, order == 0))
    return;
  if (base.has_facet(facet.kind) && order > 0)
    return report(facet, is_total ? "totalDigits-valid-restriction" : "fractionDigits-valid-restriction",
      "must not be greater than the " + base.facet_text(facet.kind) + " of " + name_of(base) + ", which it restricts");
  own = count;
  set(facet);
}

// whiteSpace-valid-restriction
void axsRestriction::add_white_space(axsFacet const& facet)
{
  std::string_view const name = axsWhiteSpaces::trimmed(facet.value);
  axsWhiteSpace wanted = axsWhiteSpace::preserve;
  while (axsWhiteSpaces::name(wanted) != name)
  {
    if (wanted == axsWhiteSpace::collapse)
      return report(facet, "cvc-enumeration-valid", "must be 'preserve', 'replace' or 'collapse'");
    wanted = static_cast<axsWhiteSpace>(static_cast<int>(wanted) + 1);
  }
  if (!keeps_fixed(facet, wanted == base.white_space()))
    return;
  if (wanted < base.white_space())
    return report(facet, "whiteSpace-valid-restriction",
      "is less than '" + std::string(axsWhiteSpaces::name(base.white_space())) + "', that of " + name_of(base) +
        ", which it restricts");
  made.own_white_space = wanted;
  set(facet);
}

void axsRestriction::add_bound(axsFacet const& facet)
{
  Kind const inclusive = is_lower(facet.kind) ? Kind::min_inclusive : Kind::max_inclusive;
  Kind const exclusive = is_lower(facet.kind) ? Kind::min_exclusive : Kind::max_exclusive;
  if (is_own(inclusive) || is_own(exclusive))
    return report(facet, is_lower(facet.kind) ? "minInclusive-minExclusive" : "maxInclusive-maxExclusive",
      "must not stand beside " + std::string(axsFacets::name(is_own(inclusive) ? inclusive : exclusive)));
  std::string bytes;
  if (!read_bound(facet, bytes))
    return;
  unset(facet.kind == inclusive ? exclusive : inclusive);
  (is_lower(facet.kind) ? made.min_bound : made.max_bound) = bytes;
  set(facet);
}

// The value must be one of the base (Part 2, 4.3.7.1), or its own bound, which excludes itself.
bool axsRestriction::read_bound(axsFacet const& facet, std::string& bytes)
{
  axsNoContext const context;
  std::string const& own = is_lower(facet.kind) ? base.min_bound : base.max_bound;
  axsValue bound;
  bool const is_of_base = base.check(facet.value, context, &bound);
  axsSimpleType const* primitive = &base;
  while (primitive->base()->primitive() != axsPrimitive::none)
    primitive = primitive->base();
  if (!is_of_base && !primitive->check(facet.value, context, &bound))
  {
    report(facet, "cvc-datatype-valid.1.2.1", "is wrong: " + base.fault(facet.value, context));
    return false;
  }
  bytes = bound.bytes();
  bool const is_same = base.has_facet(facet.kind) && bytes == own;
  if (!keeps_fixed(facet, is_same) || !is_bound_within_base(facet, bytes))
    return false;
  if (!is_of_base && !is_same)
    report(facet, "cvc-datatype-valid.1.2.1", "is wrong: " + base.fault(facet.value, context));
  return is_of_base || is_same;
}

// maxInclusive-valid-restriction and the like: no further out than the base's bounds.
bool axsRestriction::is_bound_within_base(axsFacet const& facet, std::string const& bytes)
{
  static char const* const rules[] = {"maxInclusive-valid-restriction", "maxExclusive-valid-restriction",
    "minExclusive-valid-restriction", "minInclusive-valid-restriction"};
  char const* const rule = rules[static_cast<std::size_t>(facet.kind) - static_cast<std::size_t>(Kind::max_inclusive)];
  for (bool const lower : {true, false})
  {
    std::string const& bound = lower ? base.min_bound : base.max_bound;
    if (bound.empty())
      continue;
    bool const base_is_exclusive = base.has_facet(lower ? Kind::min_exclusive : Kind::max_exclusive);
    bool const same_side = lower == is_lower(facet.kind);
    // What lies on the base's bound itself is outside, unless that takes it, or both exclude it.
    bool const may_equal =
      same_side ? !base_is_exclusive || is_exclusive(facet.kind) : !base_is_exclusive && !is_exclusive(facet.kind);
    Order const order = axsValue::compare(bytes, bound);
    if (order != (lower ? Order::less : Order::greater) && (order != Order::equal || may_equal))
      continue;
    Kind const kind = lower ? (base_is_exclusive ? Kind::min_exclusive : Kind::min_inclusive)
                            : (base_is_exclusive ? Kind::max_exclusive : Kind::max_inclusive);
    report(facet, rule,
      "is outside of the values of " + name_of(base) + ", whose " + std::string(axsFacets::name(kind)) + " is " +
        quoted(base.facet_text(kind)));
    return false;
  }
  return true;
}

// Part 1, 3.14.6 cos-st-restricts; Part 2, 4.3.1.1 {fixed}
bool axsRestriction::keeps_fixed(axsFacet const& facet, bool is_same)
{
  if (is_same || !base.is_fixed(facet.kind))
    return true;
  report(facet, "cos-st-restricts.1.3",
    "must not be changed: " + name_of(base) + " fixes it to " + quoted(base.facet_text(facet.kind)));
  return false;
}

void axsRestriction::add_pattern(axsFacet const& facet)
{
  axsPattern::Fault fault;
  if (axsPattern::compile(facet.value, fault) == nullptr)
    return report(facet, "pattern-valid",
      "is no regular expression: " + fault.text + " (character " + std::to_string(fault.character) + ")");
  patterns.push_back(facet.value);
}

// enumeration-valid-restriction
void axsRestriction::add_enumeration(axsFacet const& facet)
{
  axsNoContext const no_context;
  axsValueContext const& context = facet.context == nullptr ? no_context : *facet.context;
  if (values == nullptr)
    values = std::make_shared<axsSimpleType::Enumeration>();
  if (!base.check(facet.value, context, &value))
    return report(facet, "enumeration-valid-restriction", "is wrong: " + base.fault(facet.value, context));
  values->values.insert(value.bytes());
  if (values->shown.size() < max_shown)
    values->shown.emplace_back(facet.value);
}

// length-minLength-maxLength, minLength-less-than-equal-to-maxLength. A length may join the bounds of the base if it keeps
// them, and then says all; the two may not be given in one step.
void axsRestriction::check_lengths()
{
  std::size_t const length = made.lengths[0];
  bool const has_length = made.has_facet(Kind::length);
  for (Kind const kind : {Kind::min_length, Kind::max_length})
  {
    if (!has_length || !made.has_facet(kind))
      continue;
    std::size_t const bound = made.lengths[static_cast<std::size_t>(kind)];
    int const order = compared(bound, made.facet_text(kind), length, made.facet_text(Kind::length));
    bool const is_inside = kind == Kind::min_length ? order <= 0 : order >= 0;
    bool const is_of_ancestor = base.has_facet(kind) && base.lengths[static_cast<std::size_t>(kind)] == bound;
    if (!is_inside || !is_of_ancestor)
      report(place_of(is_own(kind) ? kind : Kind::length), "length-minLength-maxLength",
        "length " + quoted(made.facet_text(Kind::length)) + " and " + std::string(axsFacets::name(kind)) + " " +
          quoted(made.facet_text(kind)) + " do not go together");
  }
  if (made.has_facet(Kind::min_length) && made.has_facet(Kind::max_length) &&
      compared(made.lengths[1], made.facet_text(Kind::min_length), made.lengths[2], made.facet_text(Kind::max_length)) >
        0)
    report(place_of(is_own(Kind::min_length) ? Kind::min_length : Kind::max_length),
      "minLength-less-than-equal-to-maxLength",
      "minLength " + quoted(made.facet_text(Kind::min_length)) + " is greater than maxLength " +
        quoted(made.facet_text(Kind::max_length)));
}

// minInclusive-less-than-equal-to-maxInclusive and the like. A bound of the step has been held against those of the base.
void axsRestriction::check_bounds()
{
  if (made.min_bound.empty() || made.max_bound.empty())
    return;
  bool const min_excludes = made.has_facet(Kind::min_exclusive);
  bool const max_excludes = made.has_facet(Kind::max_exclusive);
  Kind const min = min_excludes ? Kind::min_exclusive : Kind::min_inclusive;
  Kind const max = max_excludes ? Kind::max_exclusive : Kind::max_inclusive;
  if (!is_own(min) && !is_own(max))
    return;
  Order const order = axsValue::compare(made.min_bound, made.max_bound);
  if (order != Order::greater && (order != Order::equal || min_excludes == max_excludes))
    return;
  static char const* const rules[] = {"minInclusive-less-than-equal-to-maxInclusive",
    "minInclusive-less-than-maxExclusive", "minExclusive-less-than-maxInclusive",
    "minExclusive-less-than-equal-to-maxExclusive"};
  report(place_of(is_own(min) ? min : max), rules[(min_excludes ? 2 : 0) + (max_excludes ? 1 : 0)],
    std::string(axsFacets::name(min)) + " " + quoted(made.facet_text(min)) + " and " +
      std::string(axsFacets::name(max)) + " " + quoted(made.facet_text(max)) + " leave no value");
}

// fractionDigits-less-than-equal-to-totalDigits
void axsRestriction::check_digits()
{
  if (!made.has_facet(Kind::total_digits) || !made.has_facet(Kind::fraction_digits) ||
      compared(made.fraction_digits, made.facet_text(Kind::fraction_digits), made.total_digits,
        made.facet_text(Kind::total_digits)) <= 0)
    return;
  report(place_of(is_own(Kind::fraction_digits) ? Kind::fraction_digits : Kind::total_digits),
    "fractionDigits-less-than-equal-to-totalDigits",
    "fractionDigits " + quoted(made.facet_text(Kind::fraction_digits)) + " is greater than totalDigits " +
      quoted(made.facet_text(Kind::total_digits)));
}

// Those of one step are alternatives (4.3.4.3, src-multiple-patterns), in the form of one expression.
void axsRestriction::finish_patterns()
{
  if (patterns.empty())
    return;
  std::string all(patterns.size() == 1 ? patterns.front() : std::string_view());
  std::string& shown = made.patterns.shown;
  for (std::size_t i = 0; i < patterns.size(); ++i)
  {
    if (patterns.size() > 1)
      ((all += i == 0 ? "(" : "|(") += patterns[i]) += ')';
    if (i < max_shown)
      shown += (i == 0 ? "" : " or ") + quoted(patterns[i]);
  }
  axsPattern::Fault fault;
  made.patterns.pattern = axsPattern::compile(all, fault);
  if (made.patterns.pattern == nullptr)
    return report(type_place, "pattern-valid", "its patterns are too large: " + fault.text);
  made.with_patterns = &made;
  made.set_facets |= axsSimpleType::bit(Kind::pattern);
}

void axsRestriction::finish_enumeration()
{
  if (values == nullptr)
    return;
  made.own_enumeration = std::move(values);
  made.set_facets |= axsSimpleType::bit(Kind::enumeration);
}

void axsRestriction::set(axsFacet const& facet)
{
  unset(facet.kind);
  made.set_facets |= axsSimpleType::bit(facet.kind);
  if (facet.fixed)
    made.fixed_facets |= axsSimpleType::bit(facet.kind);
  made.facet_texts.push_back({facet.kind, std::string(axsWhiteSpaces::trimmed(facet.value))});
  own_facets |= axsSimpleType::bit(facet.kind);
  places[static_cast<std::size_t>(facet.kind)] = facet.place;
}

void axsRestriction::unset(Kind kind)
{
  made.set_facets &= ~axsSimpleType::bit(kind);
  made.facet_texts.erase(std::remove_if(made.facet_texts.begin(), made.facet_texts.end(),
                           [kind](axsSimpleType::FacetText const& text) { return text.kind == kind; }),
    made.facet_texts.end());
}

bool axsRestriction::is_own(Kind kind) const noexcept
{
  return (own_facets & axsSimpleType::bit(kind)) != 0;
}

std::uint64_t axsRestriction::place_of(Kind kind) const noexcept
{
  return is_own(kind) ? places[static_cast<std::size_t>(kind)] : type_place;
}

void axsRestriction::report(std::uint64_t place, char const* rule, std::string text)
{
  diagnostics.report(place, rule, std::move(text));
}

void axsRestriction::report(axsFacet const& facet, char const* rule, std::string const& text)
{
  report(facet.place, rule, std::string(axsFacets::name(facet.kind)) + " " + quoted(facet.value) + " " + text);
}
