#include "axsTypeChecker.h"

#include "axsBinary.h"
#include "axsDecimal.h"
#include "axsDuration.h"
#include "axsFloat.h"
#include "axsPattern.h"
#include "axsTextForm.h"

#include <utUtf8.h>

#include <unordered_set>

using Problem = axsTypeChecker::Problem;
using Verdict = axsTypeChecker::Verdict;
using Order = axsValue::Order;

namespace
{
Verdict valid() noexcept
{
  return {};
}

Verdict wrong(Problem problem, axsSimpleType const& type)
{
  Verdict verdict;
  verdict.problem = problem;
  verdict.type = &type;
  return verdict;
}

Verdict against(axsFacetKind facet, axsSimpleType const& type, std::size_t amount = 0)
{
  Verdict verdict = wrong(Problem::facet, type);
  verdict.facet = facet;
  verdict.amount = amount;
  return verdict;
}

Verdict if_form(bool is_right, axsSimpleType const& type)
{
  return is_right ? valid() : wrong(Problem::form, type);
}

// The bytes of a list: those of no primitive type, then its items, each with its size before it, seven bits a byte.
void append_item(std::string_view item, std::string& list)
{
  std::size_t size = item.size();
  for (; size >= 0x80; size >>= 7)
    list += static_cast<char>((size & 0x7F) | 0x80);
  list += static_cast<char>(size);
  list += item;
}

bool is_text(axsPrimitive primitive) noexcept
{
  return primitive == axsPrimitive::string || primitive == axsPrimitive::any_uri;
}
}

Verdict axsTypeChecker::check(axsSimpleType const& type, std::string_view text, axsValue* value) const
{
  Target target;
  if (value == nullptr)
    return check_any(type, text, target);
  value->clear();
  target.bytes = &value->data;
  target.names = &value->names;
  Verdict const verdict = check_any(type, text, target);
  value->active = target.active;
  return verdict;
}

Verdict axsTypeChecker::check_any(axsSimpleType const& type, std::string_view text, Target& target) const
{
  if (target.bytes == nullptr && target.names == nullptr && type.quick.takes(text))
  {
    target.active = &type;
    return valid();
  }
  switch (type.variety())
  {
  case axsSimpleType::Variety::list:
    return check_list(type, text, target);
  case axsSimpleType::Variety::union_of:
    return check_union(type, text, target);
  case axsSimpleType::Variety::atomic:
    return check_atomic(type, text, target);
  default:
    // Any text is a value of anySimpleType; it is a string.
    if (target.bytes != nullptr)
      (*target.bytes += static_cast<char>(axsPrimitive::string)) += text;
    target.active = &type;
    return valid();
  }
}

Verdict axsTypeChecker::check_atomic(axsSimpleType const& type, std::string_view text, Target& target) const
{
  // Of the other types, white space inside is wrong anyway, or makes no difference.
  bool const is_its_text = is_text(type.primitive());
  bool const is_trimmed_only = !is_its_text && type.with_patterns == nullptr;
  std::string buffer;
  std::string_view const literal =
    is_trimmed_only ? axsWhiteSpaces::trimmed(text) : axsWhiteSpaces::normalised(text, type.white_space(), buffer);

  std::string own_bytes;
  // A text that is its own value is found among those listed as it is.
  std::string* const bytes = target.bytes == nullptr && needs_bytes(type) && !is_its_text ? &own_bytes : target.bytes;
  std::size_t const begin = bytes == nullptr ? 0 : bytes->size();
  Counts counts;
  Verdict verdict = read(type, literal, bytes, counts);
  if (verdict.is_valid())
    verdict = check_patterns(type, literal);
  if (verdict.is_valid())
    verdict = check_length(type, counts.length);
  if (verdict.is_valid())
    verdict = check_digits(type, counts);
  std::string_view const made = bytes == nullptr ? std::string_view() : std::string_view(*bytes).substr(begin);
  if (verdict.is_valid() && !made.empty())
    verdict = check_bounds(type, made);
  if (verdict.is_valid() && type.own_enumeration != nullptr)
    verdict = is_its_text ? check_enumerated_text(type, literal) : check_enumeration(type, made);
  if (verdict.is_valid())
    verdict = check_role(type, literal, target);
  target.active = &type;
  return verdict;
}

bool axsTypeChecker::needs_bytes(axsSimpleType const& type) noexcept
{
  return type.own_enumeration != nullptr || !type.min_bound.empty() || !type.max_bound.empty();
}

// The lexical mapping of the primitive types, and what types derived from string ask for.
Verdict axsTypeChecker::read(
  axsSimpleType const& type, std::string_view literal, std::string* bytes, Counts& counts) const
{
  std::string unused;
  std::string& out = bytes == nullptr ? unused : *bytes;
  axsPrimitive const primitive = type.primitive();
  if (bytes != nullptr)
    out += static_cast<char>(primitive);
  switch (primitive)
  {
  case axsPrimitive::string:
  case axsPrimitive::any_uri:
    if ((type.set_facets & axsSimpleType::length_facets) != 0)
      counts.length = utUtf8::count(literal);
    if (bytes != nullptr)
      out += literal;
    return if_form(has_form(type, literal), type);
  case axsPrimitive::boolean:
    out += literal == "true" || literal == "1" ? '\1' : '\0';
    return if_form(literal == "true" || literal == "false" || literal == "1" || literal == "0", type);
  case axsPrimitive::decimal:
    return read_decimal(type, literal, bytes, counts);
  case axsPrimitive::float32:
    return if_form(axsFloat::append32(literal, out), type);
  case axsPrimitive::float64:
    return if_form(axsFloat::append64(literal, out), type);
  case axsPrimitive::duration:
    return if_form(axsDuration::append(literal, out), type);
  case axsPrimitive::hex_binary:
    return if_form(axsBinary::read_hex(literal, bytes, counts.length), type);
  case axsPrimitive::base64_binary:
    return if_form(axsBinary::read_base64(literal, bytes, counts.length), type);
  case axsPrimitive::qname:
  case axsPrimitive::notation:
    return read_name(type, literal, out);
  default:
    return read_calendar(type, literal, bytes);
  }
}

bool axsTypeChecker::has_form(axsSimpleType const& type, std::string_view literal) noexcept
{
  if (type.primitive() == axsPrimitive::any_uri)
    return axsTextForm::is_uri(literal);
  switch (type.form)
  {
  case axsSimpleType::Form::language:
    return axsTextForm::is_language(literal);
  case axsSimpleType::Form::nmtoken:
    return axsTextForm::is_nmtoken(literal);
  case axsSimpleType::Form::name:
    return axsTextForm::is_name(literal);
  case axsSimpleType::Form::ncname:
    return axsTextForm::is_ncname(literal);
  default:
    return true;
  }
}

Verdict axsTypeChecker::read_decimal(
  axsSimpleType const& type, std::string_view literal, std::string* bytes, Counts& counts)
{
  axsDecimal::Parts parts;
  if (!axsDecimal::parse(literal, parts) || (type.form == axsSimpleType::Form::integer && parts.has_point))
    return wrong(Problem::form, type);
  counts.digits = parts.digits();
  counts.fraction_digits = parts.fraction.size();
  if (bytes != nullptr)
    axsDecimal::append(parts, *bytes);
  return valid();
}

Verdict axsTypeChecker::read_calendar(axsSimpleType const& type, std::string_view literal, std::string* bytes)
{
  axsCalendar point;
  Verdict verdict;
  verdict.calendar = point.read(type.primitive(), literal);
  if (verdict.calendar == axsCalendar::Fault::none)
  {
    if (bytes != nullptr)
      point.append(*bytes);
    return verdict;
  }
  verdict.problem = Problem::form;
  verdict.type = &type;
  verdict.amount = static_cast<std::size_t>(point.days_in_month());
  return verdict;
}

// A name in a namespace (Part 2, 3.2.18, 3.2.19): the namespace, a character that none has, the local name.
Verdict axsTypeChecker::read_name(axsSimpleType const& type, std::string_view literal, std::string& bytes) const
{
  std::size_t const colon = literal.find(':');
  bool const has_prefix = colon != std::string_view::npos;
  std::string_view const prefix = has_prefix ? literal.substr(0, colon) : std::string_view();
  std::string_view const local = has_prefix ? literal.substr(colon + 1) : literal;
  if (!axsTextForm::is_ncname(local) || (has_prefix && !axsTextForm::is_ncname(prefix)))
    return wrong(Problem::form, type);
  std::string_view uri;
  if (!context.find_namespace(prefix, uri))
    return wrong(Problem::prefix, type);
  if (type.primitive() == axsPrimitive::notation && !context.is_notation(uri, local))
    return wrong(Problem::notation, type);
  ((bytes += uri) += '\0') += local;
  return valid();
}

Verdict axsTypeChecker::check_role(axsSimpleType const& type, std::string_view literal, Target& target) const
{
  if (type.role() == axsSimpleType::Role::entity)
    return context.is_unparsed_entity(literal) ? valid() : wrong(Problem::entity, type);
  if (type.role() == axsSimpleType::Role::plain || target.names == nullptr)
    return valid();
  bool const is_id = type.role() == axsSimpleType::Role::id;
  target.names->push_back({is_id ? axsValue::Reference::id : axsValue::Reference::idref, std::string(literal)});
  return valid();
}

Verdict axsTypeChecker::check_list(axsSimpleType const& type, std::string_view text, Target& target) const
{
  std::string own_bytes;
  std::string* const bytes = target.bytes == nullptr && needs_bytes(type) ? &own_bytes : target.bytes;
  std::size_t const begin = bytes == nullptr ? 0 : bytes->size();
  if (bytes != nullptr)
    *bytes += static_cast<char>(axsPrimitive::none);
  std::string item_bytes;
  Target of_item;
  of_item.bytes = bytes == nullptr ? nullptr : &item_bytes;
  of_item.names = target.names;
  std::size_t length = 0;
  std::string_view rest = text;
  for (std::string_view item; axsWhiteSpaces::next_item(rest, item); ++length)
  {
    item_bytes.clear();
    Verdict verdict = check_any(*type.item(), item, of_item);
    if (!verdict.is_valid())
    {
      verdict.item = item;
      return verdict;
    }
    if (bytes != nullptr)
      append_item(item_bytes, *bytes);
  }
  target.active = &type;
  Verdict verdict = check_length(type, length);
  std::string buffer;
  if (verdict.is_valid() && type.with_patterns != nullptr)
    verdict = check_patterns(type, axsWhiteSpaces::normalised(text, axsWhiteSpace::collapse, buffer));
  if (verdict.is_valid() && type.own_enumeration != nullptr)
    verdict = check_enumeration(type, std::string_view(*bytes).substr(begin));
  return verdict;
}

Verdict axsTypeChecker::check_union(axsSimpleType const& type, std::string_view text, Target& target) const
{
  std::string own_bytes;
  Target inner = target;
  if (target.bytes == nullptr && needs_bytes(type))
    inner.bytes = &own_bytes;
  std::size_t const begin = inner.bytes == nullptr ? 0 : inner.bytes->size();
  Verdict verdict = find_member(type, text, inner);
  target.active = inner.active;
  std::string buffer;
  if (verdict.is_valid() && type.with_patterns != nullptr)
    verdict = check_patterns(type, axsWhiteSpaces::normalised(text, inner.active->white_space(), buffer));
  if (verdict.is_valid() && type.own_enumeration != nullptr)
    verdict = check_enumeration(type, std::string_view(*inner.bytes).substr(begin));
  return verdict;
}

// The first that takes the text. Where a member is a union, its members stand in its place (Part 1, 3.14.2, {member type
// definitions}), each union once, however often it is named in others.
Verdict axsTypeChecker::find_member(axsSimpleType const& type, std::string_view text, Target& target) const
{
  struct Level
  {
    axsSimpleType const* type;
    std::size_t next;
  };
  std::vector<Level> outer;
  std::unordered_set<axsSimpleType const*> seen;
  Level level{&type, 0};
  while (true)
  {
    if (level.next == level.type->members().size())
    {
      if (outer.empty())
        return wrong(Problem::member, type);
      level = outer.back();
      outer.pop_back();
      continue;
    }
    axsSimpleType const& member = *level.type->members()[level.next++];
    if (member.variety() == axsSimpleType::Variety::union_of)
    {
      if (!seen.insert(&member).second)
        continue;
      outer.push_back(level);
      level = {&member, 0};
    }
    else if (takes(member, text, target))
      return valid();
  }
}

bool axsTypeChecker::takes(axsSimpleType const& member, std::string_view text, Target& target) const
{
  std::size_t const bytes = target.bytes == nullptr ? 0 : target.bytes->size();
  std::size_t const names = target.names == nullptr ? 0 : target.names->size();
  if (check_any(member, text, target).is_valid())
    return true;
  if (target.bytes != nullptr)
    target.bytes->resize(bytes);
  while (target.names != nullptr && target.names->size() > names)
    target.names->pop_back();
  return false;
}

// cvc-pattern-valid, for each step of derivation (Part 2, 4.3.4).
Verdict axsTypeChecker::check_patterns(axsSimpleType const& type, std::string_view literal)
{
  for (axsSimpleType const* step = type.with_patterns; step != nullptr; step = step->own_base->with_patterns)
    if (!step->patterns.pattern->matches(literal))
      return against(axsFacetKind::pattern, *step);
  return valid();
}

// cvc-length-valid, cvc-minLength-valid, cvc-maxLength-valid. All QNames and notations are of any length (4.3.1.3).
Verdict axsTypeChecker::check_length(axsSimpleType const& type, std::size_t length)
{
  if ((type.set_facets & axsSimpleType::length_facets) == 0 || type.primitive() == axsPrimitive::qname ||
      type.primitive() == axsPrimitive::notation)
    return valid();
  auto const bound = [&type](axsFacetKind kind) { return type.lengths[static_cast<std::size_t>(kind)]; };
  if (type.has_facet(axsFacetKind::length) && length != bound(axsFacetKind::length))
    return against(axsFacetKind::length, type, length);
  if (type.has_facet(axsFacetKind::min_length) && length < bound(axsFacetKind::min_length))
    return against(axsFacetKind::min_length, type, length);
  if (type.has_facet(axsFacetKind::max_length) && length > bound(axsFacetKind::max_length))
    return against(axsFacetKind::max_length, type, length);
  return valid();
}

// cvc-totalDigits-valid, cvc-fractionDigits-valid
Verdict axsTypeChecker::check_digits(axsSimpleType const& type, Counts const& counts)
{
  if (type.has_facet(axsFacetKind::total_digits) && counts.digits > type.total_digits)
    return against(axsFacetKind::total_digits, type, counts.digits);
  if (type.has_facet(axsFacetKind::fraction_digits) && counts.fraction_digits > type.fraction_digits)
    return against(axsFacetKind::fraction_digits, type, counts.fraction_digits);
  return valid();
}

// cvc-minInclusive-valid and the like
Verdict axsTypeChecker::check_bounds(axsSimpleType const& type, std::string_view bytes)
{
  if (!type.min_bound.empty())
  {
    bool const inclusive = type.has_facet(axsFacetKind::min_inclusive);
    Order const order = axsValue::compare(bytes, type.min_bound);
    if (order != Order::greater && !(inclusive && order == Order::equal))
      return against(inclusive ? axsFacetKind::min_inclusive : axsFacetKind::min_exclusive, type);
  }
  if (!type.max_bound.empty())
  {
    bool const inclusive = type.has_facet(axsFacetKind::max_inclusive);
    Order const order = axsValue::compare(bytes, type.max_bound);
    if (order != Order::less && !(inclusive && order == Order::equal))
      return against(inclusive ? axsFacetKind::max_inclusive : axsFacetKind::max_exclusive, type);
  }
  return valid();
}

// cvc-enumeration-valid
Verdict axsTypeChecker::check_enumeration(axsSimpleType const& type, std::string_view bytes)
{
  return type.own_enumeration->values.find(bytes) == axsValueSet::none ? against(axsFacetKind::enumeration, type)
                                                                       : valid();
}

Verdict axsTypeChecker::check_enumerated_text(axsSimpleType const& type, std::string_view literal)
{
  auto const first = static_cast<char>(type.primitive());
  return type.own_enumeration->values.find(first, literal) == axsValueSet::none
           ? against(axsFacetKind::enumeration, type)
           : valid();
}
