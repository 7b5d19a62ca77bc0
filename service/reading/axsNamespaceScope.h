#pragma once

#include "axsName.h"

#include <apString.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

/// Follows the namespace declarations of a document and finds what is wrong with them and with the names that need them
/// (Namespaces in XML 1.0). The parser itself could do it, but takes a time that grows with the square of the depth.
class axsNamespaceScope
{
public:
  /// The attributes of one element: name and value.
  using Attributes = std::vector<std::pair<axsName const*, std::string>>;

  /// An element begins. What is wrong with it, empty if nothing is.
  apString open(axsName const& name, Attributes const& attributes);

  /// The element that began last ends.
  void close();

private:
  apString declare(axsName const& name, std::string const& value);
  apString check_name(axsName const& name, bool is_attribute) const;
  apString check_repetition(Attributes const& attributes) const;
  std::string_view find(std::string_view prefix) const;

  // The namespaces that a prefix is bound to, the innermost at the end.
  std::unordered_map<std::string, std::vector<std::string>> bound;
  // The prefixes declared by the open elements, and at which depth.
  std::vector<std::pair<std::size_t, std::string>> declared;
  std::size_t depth = 0;
};
