#pragma once

#include "axsWhiteSpace.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

class axsPattern;
class axsSimpleType;
class axsValueSet;

/// Recognises most values of the types that most values are of: texts, names, numbers and dates as they are usually
/// written, with the usual facets. Of other values it knows nothing, and never says that a text is none: axsTypeChecker
/// has the rules. Immutable; what it refers to belongs to the type.
class axsQuickCheck
{
public:
  /// Recognises nothing.
  axsQuickCheck() = default;

  explicit axsQuickCheck(axsSimpleType const& type);

  /// Whether every text is a value of the type.
  bool takes_all() const noexcept { return form == Form::any; }

  /// Whether `text` is recognised as a value of the type. Linear in its length; allocates nothing but what a pattern does.
  bool takes(std::string_view text) const
  {
    return form == Form::any || (form != Form::unknown && has_form(text) && (is_free || has_facets(text)));
  }

private:
  enum class Form : unsigned char
  {
    unknown,
    any,
    text,
    uri,
    nmtoken,
    name,
    ncname,
    language,
    boolean,
    integer,
    decimal,
    date,
    date_time
  };

  static Form text_form(axsSimpleType const& type) noexcept;
  static Form form_of(axsSimpleType const& type) noexcept;
  void take_text_facets(axsSimpleType const& type);
  void take_number_facets(axsSimpleType const& type);
  void forget() noexcept { form = Form::unknown; }
  void take_lower_bound(std::string_view bound, bool is_exclusive);
  void take_upper_bound(std::string_view bound, bool is_exclusive);

  bool has_form(std::string_view text) const;
  bool has_facets(std::string_view text) const;
  bool is_normal(std::string_view text) const noexcept;
  bool is_number(std::string_view text) const noexcept;

  Form form = Form::unknown;
  axsWhiteSpace white_space = axsWhiteSpace::preserve;
  bool is_free = true; // of facets that has_facets() looks at
  bool has_lengths = false;
  char first_byte = 0; // of values that are listed
  std::size_t min_length = 0;
  std::size_t max_length = std::numeric_limits<std::size_t>::max();
  std::size_t total_digits = std::numeric_limits<std::size_t>::max();
  std::size_t fraction_digits = std::numeric_limits<std::size_t>::max();
  std::int64_t least = std::numeric_limits<std::int64_t>::min();
  std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  axsPattern const* pattern = nullptr;
  axsValueSet const* listed = nullptr;
};
