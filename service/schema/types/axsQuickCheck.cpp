#include "axsQuickCheck.h"

#include "axsDecimal.h"
#include "axsPattern.h"
#include "axsSimpleType.h"
#include "axsTextForm.h"
#include "axsValueSet.h"

#include <utUtf8.h>

namespace
{
using Kind = axsFacetKind;

// So many digits fit into 64 bits, with room for one more on either side.
std::size_t const max_digits = 18;

bool is_digit(char c) noexcept
{
  return c >= '0' && c <= '9';
}

std::int64_t number_of(std::string_view digits) noexcept
{
  std::int64_t number = 0;
  for (char const c : digits)
    number = number * 10 + (c - '0');
  return number;
}

std::size_t digits_at(std::string_view text, std::size_t at) noexcept
{
  std::size_t end = at;
  while (end < text.size() && is_digit(text[end]))
    ++end;
  return end - at;
}

// Whether `text` has the form of `form`, in which a 0 is any digit.
bool has_shape(std::string_view text, std::string_view form) noexcept
{
  for (std::size_t i = 0; i < form.size(); ++i)
    if (form[i] == '0' ? !is_digit(text[i]) : text[i] != form[i])
      return false;
  return true;
}

int two_digits(char const* at) noexcept
{
  return (at[0] - '0') * 10 + (at[1] - '0');
}

// yyyy-mm-dd, but for the 29th of February.
bool is_date(std::string_view text) noexcept
{
  if (text.size() != 10 || !has_shape(text, "0000-00-00") || text.substr(0, 4) == "0000")
    return false;
  int const month = two_digits(&text[5]);
  int const day = two_digits(&text[8]);
  if (month < 1 || month > 12 || day < 1)
    return false;
  static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return day <= days[month - 1];
}

// hh:mm:ss, perhaps with a Z, but for 24:00:00.
bool is_date_time(std::string_view text) noexcept
{
  std::size_t const size = 19;
  if (text.size() == size + 1 && text.back() == 'Z')
    text.remove_suffix(1);
  if (text.size() != size || !is_date(text.substr(0, 10)) || !has_shape(text.substr(10), "T00:00:00"))
    return false;
  return two_digits(&text[11]) < 24 && two_digits(&text[14]) < 60 && two_digits(&text[17]) < 60;
}
}

axsQuickCheck::axsQuickCheck(axsSimpleType const& type)
{
  if (type.variety() == axsSimpleType::Variety::ur)
    form = Form::any;
  if (type.variety() != axsSimpleType::Variety::atomic || type.role() == axsSimpleType::Role::entity)
    return;
  form = form_of(type);
  white_space = type.white_space();
  if (type.with_patterns != nullptr)
  {
    pattern = type.with_patterns->patterns.pattern.get();
    if (type.with_patterns->own_base->with_patterns != nullptr)
    {
      forget();
      return;
    }
  }
  if (form >= Form::text && form <= Form::language)
    take_text_facets(type);
  else
    take_number_facets(type);
  is_free = pattern == nullptr && listed == nullptr && !has_lengths;
  if (form == Form::text && is_free)
    form = Form::any;
}

axsQuickCheck::Form axsQuickCheck::form_of(axsSimpleType const& type) noexcept
{
  switch (type.primitive())
  {
  case axsPrimitive::string:
    return text_form(type);
  case axsPrimitive::any_uri:
    return Form::uri;
  case axsPrimitive::boolean:
    return Form::boolean;
  case axsPrimitive::decimal:
    return type.form == axsSimpleType::Form::integer ? Form::integer : Form::decimal;
  case axsPrimitive::float32:
  case axsPrimitive::float64:
    return Form::decimal;
  case axsPrimitive::date:
    return Form::date;
  case axsPrimitive::date_time:
    return Form::date_time;
  default:
    return Form::unknown;
  }
}

axsQuickCheck::Form axsQuickCheck::text_form(axsSimpleType const& type) noexcept
{
  switch (type.form)
  {
  case axsSimpleType::Form::language:
    return Form::language;
  case axsSimpleType::Form::nmtoken:
    return Form::nmtoken;
  case axsSimpleType::Form::name:
    return Form::name;
  case axsSimpleType::Form::ncname:
    return Form::ncname;
  default:
    return Form::text;
  }
}

void axsQuickCheck::take_text_facets(axsSimpleType const& type)
{
  has_lengths = (type.set_facets & axsSimpleType::length_facets) != 0;
  listed = type.enumeration();
  first_byte = static_cast<char>(type.primitive());
  auto const bound = [&type](Kind kind) { return type.lengths[static_cast<std::size_t>(kind)]; };
  if (type.has_facet(Kind::min_length))
    min_length = bound(Kind::min_length);
  if (type.has_facet(Kind::max_length))
    max_length = bound(Kind::max_length);
  if (type.has_facet(Kind::length))
  {
    std::size_t const length = bound(Kind::length);
    if (length < min_length || length > max_length)
      return forget();
    min_length = max_length = length;
  }
}

void axsQuickCheck::take_number_facets(axsSimpleType const& type)
{
  if (type.enumeration() != nullptr)
    return forget();
  bool const has_bounds = !type.min_bound.empty() || !type.max_bound.empty();
  if (type.primitive() != axsPrimitive::decimal)
    return has_bounds ? forget() : void();
  if (type.has_facet(Kind::total_digits))
    total_digits = type.total_digits;
  if (type.has_facet(Kind::fraction_digits))
    fraction_digits = type.fraction_digits;
  if (type.has_facet(Kind::min_inclusive))
    take_lower_bound(type.facet_text(Kind::min_inclusive), false);
  if (type.has_facet(Kind::min_exclusive))
    take_lower_bound(type.facet_text(Kind::min_exclusive), true);
  if (type.has_facet(Kind::max_inclusive))
    take_upper_bound(type.facet_text(Kind::max_inclusive), false);
  if (type.has_facet(Kind::max_exclusive))
    take_upper_bound(type.facet_text(Kind::max_exclusive), true);
}

// Of a bound that lies between two integers, or that is larger than what is recognised, the nearest one that is.
void axsQuickCheck::take_lower_bound(std::string_view bound, bool is_exclusive)
{
  axsDecimal::Parts parts;
  if (!axsDecimal::parse(axsWhiteSpaces::trimmed(bound), parts) || parts.whole.size() > max_digits)
    return parts.negative ? void() : forget();
  std::int64_t const number = number_of(parts.whole);
  least = parts.negative ? -number : number;
  if (is_exclusive || !parts.fraction.empty())
    ++least;
}

void axsQuickCheck::take_upper_bound(std::string_view bound, bool is_exclusive)
{
  axsDecimal::Parts parts;
  if (!axsDecimal::parse(axsWhiteSpaces::trimmed(bound), parts) || parts.whole.size() > max_digits)
    return parts.negative ? forget() : void();
  std::int64_t const number = number_of(parts.whole);
  largest = parts.negative ? -number : number;
  if (is_exclusive || !parts.fraction.empty())
    --largest;
}

bool axsQuickCheck::has_form(std::string_view text) const
{
  switch (form)
  {
  case Form::text:
    return is_normal(text);
  case Form::uri:
    return is_normal(text) && axsTextForm::is_uri(text);
  case Form::nmtoken:
    return axsTextForm::is_nmtoken(text);
  case Form::name:
    return axsTextForm::is_name(text);
  case Form::ncname:
    return axsTextForm::is_ncname(text);
  case Form::language:
    return axsTextForm::is_language(text);
  case Form::boolean:
    return text == "true" || text == "false" || text == "1" || text == "0";
  case Form::integer:
  case Form::decimal:
    return is_number(text);
  case Form::date:
    return is_date(text);
  case Form::date_time:
    return is_date_time(text);
  default:
    return false;
  }
}

bool axsQuickCheck::has_facets(std::string_view text) const
{
  if (has_lengths)
  {
    std::size_t const length = utUtf8::count(text);
    if (length < min_length || length > max_length)
      return false;
  }
  return (pattern == nullptr || pattern->matches(text)) &&
         (listed == nullptr || listed->find(first_byte, text) != axsValueSet::none);
}

// Whether white space is to be left as it is.
bool axsQuickCheck::is_normal(std::string_view text) const noexcept
{
  if (white_space == axsWhiteSpace::preserve)
    return true;
  bool const collapses = white_space == axsWhiteSpace::collapse;
  char before = ' ';
  for (char const c : text)
  {
    if (c == '\t' || c == '\n' || c == '\r' || (c == ' ' && before == ' ' && collapses))
      return false;
    before = c;
  }
  return !collapses || text.empty() || before != ' ';
}

// Where there is a fraction, the number lies between two integers, of which both must be within the bounds.
bool axsQuickCheck::is_number(std::string_view text) const noexcept
{
  bool const is_negative = !text.empty() && text.front() == '-';
  if (is_negative || (!text.empty() && text.front() == '+'))
    text.remove_prefix(1);
  std::size_t const whole = digits_at(text, 0);
  std::size_t fraction = 0;
  if (whole < text.size())
  {
    if (form == Form::integer || text[whole] != '.')
      return false;
    fraction = digits_at(text, whole + 1);
    if (whole + 1 + fraction != text.size())
      return false;
  }
  std::size_t const digits = whole + fraction;
  if (digits == 0 || digits > max_digits || digits > total_digits || fraction > fraction_digits)
    return false;
  std::int64_t const number = number_of(text.substr(0, whole));
  std::int64_t const further = number + (fraction > 0 ? 1 : 0);
  return is_negative ? -further >= least && -number <= largest : number >= least && further <= largest;
}
