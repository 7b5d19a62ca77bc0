#pragma once

#include "axsCalendar.h"
#include "axsFacet.h"
#include "axsSimpleType.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Decides whether texts are values of types, in one context (XML Schema Part 1, 3.14.4 cvc-simple-type; Part 2, 4.1.4
/// cvc-datatype-valid). For one thread.
class axsTypeChecker
{
public:
  /// What is wrong.
  enum class Problem : unsigned char
  {
    none,
    form,     // the text is not in the lexical space
    prefix,   // of a QName, which is not declared
    notation, // not declared
    entity,   // not declared, or not as an unparsed one
    facet,
    member // no member of a union takes it
  };

  struct Verdict
  {
    Problem problem = Problem::none;
    axsFacetKind facet = axsFacetKind::length;
    axsCalendar::Fault calendar = axsCalendar::Fault::none;
    axsSimpleType const* type = nullptr; // whose rule is not kept
    std::string_view item;               // of a list, which is to blame; a part of the text
    std::size_t amount = 0;              // what the facet has counted; the days of the month

    bool is_valid() const noexcept { return problem == Problem::none; }
  };

  explicit axsTypeChecker(axsValueContext const& given) noexcept : context(given) {}

  /// `value`, unless null, gets the value; what it holds after a problem does not count.
  Verdict check(axsSimpleType const& type, std::string_view text, axsValue* value) const;

private:
  struct Counts
  {
    std::size_t length = 0;
    std::size_t digits = 0;
    std::size_t fraction_digits = 0;
  };

  // Where a value goes; nothing is made that nobody takes.
  struct Target
  {
    std::string* bytes = nullptr;
    std::vector<axsValue::Identifier>* names = nullptr;
    axsSimpleType const* active = nullptr;
  };

  Verdict check_any(axsSimpleType const& type, std::string_view text, Target& target) const;
  Verdict check_atomic(axsSimpleType const& type, std::string_view text, Target& target) const;
  Verdict check_list(axsSimpleType const& type, std::string_view text, Target& target) const;
  Verdict check_union(axsSimpleType const& type, std::string_view text, Target& target) const;
  Verdict find_member(axsSimpleType const& type, std::string_view text, Target& target) const;
  bool takes(axsSimpleType const& member, std::string_view text, Target& target) const;

  Verdict read(axsSimpleType const& type, std::string_view literal, std::string* bytes, Counts& counts) const;
  static bool has_form(axsSimpleType const& type, std::string_view literal) noexcept;
  static Verdict read_decimal(axsSimpleType const& type, std::string_view literal, std::string* bytes, Counts& counts);
  static Verdict read_calendar(axsSimpleType const& type, std::string_view literal, std::string* bytes);
  Verdict read_name(axsSimpleType const& type, std::string_view literal, std::string& bytes) const;
  static Verdict check_patterns(axsSimpleType const& type, std::string_view literal);
  static Verdict check_length(axsSimpleType const& type, std::size_t length);
  static Verdict check_digits(axsSimpleType const& type, Counts const& counts);
  static Verdict check_bounds(axsSimpleType const& type, std::string_view bytes);
  static Verdict check_enumeration(axsSimpleType const& type, std::string_view bytes);
  static Verdict check_enumerated_text(axsSimpleType const& type, std::string_view literal);
  static bool needs_bytes(axsSimpleType const& type) noexcept;
  Verdict check_role(axsSimpleType const& type, std::string_view literal, Target& target) const;

  axsValueContext const& context;
};
