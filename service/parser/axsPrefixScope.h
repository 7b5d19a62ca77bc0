#pragma once

#include <string_view>

/// The namespace prefixes that are bound where a parser is. For what has names in its text, such as the values of the
/// type QName (XML Schema Part 2, 3.2.18).
class axsPrefixScope
{
public:
  virtual ~axsPrefixScope() = default;

  /// The namespace that `prefix` is bound to, of the empty prefix the default namespace; empty for none.
  virtual std::string_view namespace_of(std::string_view prefix) const = 0;
};
