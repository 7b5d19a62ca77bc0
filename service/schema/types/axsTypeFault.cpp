#include "axsTypeFault.h"

using Problem = axsTypeChecker::Problem;
using Verdict = axsTypeChecker::Verdict;

namespace
{
std::size_t const longest_shown = 100;

struct Example
{
  char const* type;
  char const* text;
};

// For the types that are written otherwise elsewhere.
Example const examples[] = {{"decimal", "1.5"}, {"double", "1.5"}, {"float", "1.5"}, {"date", "2024-12-31"},
  {"dateTime", "2024-12-31T23:59:00"}, {"time", "23:59:00"}, {"duration", "P1DT2H30M"}, {"gYear", "2024"},
  {"gYearMonth", "2024-12"}, {"gMonth", "--12"}, {"gMonthDay", "--12-31"}, {"gDay", "---31"}};

std::string example_of(std::string const& built_in)
{
  if (built_in == "boolean")
    return ", which is true, false, 1 or 0";
  for (Example const& example : examples)
    if (built_in == example.type)
      return std::string(", as in ") + example.text;
  return std::string();
}

std::string quoted(std::string_view text)
{
  return "'" + axsTypeFault::shown(text) + "'";
}

// The type of the schema language from which it is made; null for lists and unions.
axsSimpleType const* built_in_of(axsSimpleType const& type)
{
  axsSimpleType const* at = &type;
  while (at != nullptr && !at->is_built_in())
    at = at->variety() == axsSimpleType::Variety::atomic ? at->base() : nullptr;
  return at;
}

std::string part_of_time(axsCalendar::Fault fault, std::size_t days)
{
  switch (fault)
  {
  case axsCalendar::Fault::year:
    return "there is no year 0000";
  case axsCalendar::Fault::month:
    return "its month must be between 1 and 12";
  case axsCalendar::Fault::day:
    return "its day must be between 1 and " + std::to_string(days);
  case axsCalendar::Fault::hour:
    return "its hour must be between 0 and 23, or the time 24:00:00";
  case axsCalendar::Fault::minute:
    return "its minutes must be between 0 and 59";
  case axsCalendar::Fault::second:
    return "its seconds must be between 0 and 59";
  case axsCalendar::Fault::zone:
    return "its time zone must be between -14:00 and +14:00";
  default:
    return std::string();
  }
}

std::size_t const max_listed = 12;

std::string members_of(axsSimpleType const& type)
{
  std::string list;
  for (axsSimpleType const* const member : type.members())
  {
    if (member->name().empty() || type.members().size() > max_listed)
      return "of its union";
    list += (list.empty() ? "" : ", ") + member->shown_name();
  }
  return list;
}

char const* rule_of(Verdict const& verdict)
{
  static char const* const of_facets[] = {"cvc-length-valid", "cvc-minLength-valid", "cvc-maxLength-valid",
    "cvc-pattern-valid", "cvc-enumeration-valid", "cvc-datatype-valid.1", "cvc-maxInclusive-valid",
    "cvc-maxExclusive-valid", "cvc-minExclusive-valid", "cvc-minInclusive-valid", "cvc-totalDigits-valid",
    "cvc-fractionDigits-valid"};
  switch (verdict.problem)
  {
  case Problem::facet:
    return of_facets[static_cast<std::size_t>(verdict.facet)];
  case Problem::member:
    return "cvc-datatype-valid.1.2.3";
  case Problem::entity:
    return "cvc-simple-type.2";
  default:
    return verdict.item.data() == nullptr ? "cvc-datatype-valid.1.2.1" : "cvc-datatype-valid.1.2.2";
  }
}
}

axsTypeFault::axsTypeFault(axsSimpleType const& of, std::string_view given, axsValueContext const& around)
  : type(of),
    text(given),
    context(around),
    verdict(axsTypeChecker(around).check(of, given, nullptr))
{
}

std::string axsTypeFault::words(char const** rule) const
{
  if (rule != nullptr)
    *rule = rule_of(verdict);
  axsSimpleType const* const built_in = built_in_of(type);
  if (built_in == nullptr)
    return words_of_own(verdict);
  Verdict const of_built_in = axsTypeChecker(context).check(*built_in, text, nullptr);
  return of_built_in.is_valid() ? words_of_own(verdict) : words_of_built_in(*built_in, of_built_in);
}

std::string axsTypeFault::words_of_built_in(axsSimpleType const& built_in, Verdict const& why) const
{
  bool const has_own_name = &built_in != &type && !type.name().empty();
  std::string const of =
    has_own_name ? type.shown_name() + ", which is made from " + built_in.shown_name() : built_in.shown_name();
  std::string const start = "\"" + shown(text) + "\" is not of the type " + of;
  std::string const more = reason(why);
  return more.empty() ? start + example_of(built_in.name()) : start + ": " + more;
}

std::string axsTypeFault::words_of_own(Verdict const& why) const
{
  std::string const start =
    "\"" + shown(text) + "\" is not " + (type.name().empty() ? "allowed" : "of the type " + type.shown_name());
  std::string const more = reason(why);
  return more.empty() ? start : start + ": " + more;
}

// Empty where there is nothing to say but that the form is another.
std::string axsTypeFault::reason(Verdict const& why)
{
  if (why.item.data() != nullptr)
    return reason_of_item(why);
  switch (why.problem)
  {
  case Problem::prefix:
    return "its prefix is not declared";
  case Problem::notation:
    return "the schema declares no such notation";
  case Problem::entity:
    return "the document type declares no unparsed entity of that name";
  case Problem::facet:
    return reason_of_facet(why);
  case Problem::member:
    return "it is of none of the types " + members_of(*why.type);
  default:
    return part_of_time(why.calendar, why.amount);
  }
}

std::string axsTypeFault::reason_of_item(Verdict why)
{
  std::string const item = "its item " + quoted(why.item) + " is ";
  why.item = {};
  std::string const more = reason(why);
  std::string const of = why.type->shown_name();
  std::string const start = item + (of.empty() ? "not allowed" : "not of the type " + of);
  return more.empty() ? start : start + ": " + more;
}

std::string axsTypeFault::reason_of_facet(Verdict const& why)
{
  std::string const value = quoted(why.type->facet_text(why.facet));
  std::string const amount = quoted(std::to_string(why.amount));
  switch (why.facet)
  {
  case axsFacetKind::pattern:
    return "it does not match the pattern " + why.type->pattern_text();
  case axsFacetKind::enumeration:
    return "it is none of " + why.type->enumeration_text();
  case axsFacetKind::length:
    return "it has length " + amount + " which is not equal to length facet value " + value;
  case axsFacetKind::min_length:
    return "it has length " + amount + " which is less than minLength facet value " + value;
  case axsFacetKind::max_length:
    return "it has length " + amount + " which exceeds maxLength facet value " + value;
  case axsFacetKind::total_digits:
    return "it has " + amount + " digits, which exceeds totalDigits facet value " + value;
  case axsFacetKind::fraction_digits:
    return "it has " + amount + " fraction digits, which exceeds fractionDigits facet value " + value;
  case axsFacetKind::max_inclusive:
    return "it must be less than or equal to maxInclusive facet value " + value;
  case axsFacetKind::max_exclusive:
    return "it must be less than maxExclusive facet value " + value;
  case axsFacetKind::min_inclusive:
    return "it must be greater than or equal to minInclusive facet value " + value;
  case axsFacetKind::min_exclusive:
    return "it must be greater than minExclusive facet value " + value;
  default:
    return std::string();
  }
}

std::string axsTypeFault::shown(std::string_view text)
{
  if (text.size() <= longest_shown)
    return std::string(text);
  std::size_t end = longest_shown;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    --end;
  return std::string(text.substr(0, end)) + "...";
}
