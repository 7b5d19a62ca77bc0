#pragma once

#include "axsXPathType.h"

#include <string_view>

/// A function of the core library (XPath 1.0, section 4): how it is called and what it gives.
struct axsXPathFunction
{
  enum Id
  {
    last,
    position,
    count,
    id,
    local_name,
    namespace_uri,
    name,
    string,
    concat,
    starts_with,
    contains,
    substring_before,
    substring_after,
    substring,
    string_length,
    normalize_space,
    translate,
    boolean,
    not_,
    true_,
    false_,
    lang,
    number,
    sum,
    floor,
    ceiling,
    round
  };

  Id identity;
  std::string_view text;
  axsXPathType result;
  int min_arguments;
  /// Negative where there may be any number.
  int max_arguments;
  /// Whether the arguments have to be node-sets; any other type is converted as the function needs it.
  bool takes_node_sets;
  /// What of the context the function reads itself, as axsXPathExpression::Uses, and whether it takes the context node
  /// where it is called without an argument.
  unsigned uses;
  bool defaults_to_node;

  /// The function of that name; null if there is none.
  static axsXPathFunction const* find(std::string_view name) noexcept;
};
