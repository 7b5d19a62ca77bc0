#pragma once

#include "axsNameCache.h"
#include "axsPrefix.h"
#include "axsPrefixScope.h"
#include "axsQName.h"
#include "axsReadAttributes.h"
#include "axsTextHash.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

/// Follows the namespace declarations of a document and finds what is wrong with them and with the names that need them
/// (Namespaces in XML 1.0). The names are those of one axsNameCache, in whose prefixes the scope keeps what they are
/// bound to.
class axsNamespaceScope : public axsPrefixScope
{
public:
  static constexpr std::string_view xml_namespace = "http://www.w3.org/XML/1998/namespace";
  static constexpr std::string_view xmlns_namespace = "http://www.w3.org/2000/xmlns/";

  /// Of the names in `all`, which must live longer.
  explicit axsNamespaceScope(axsNameCache const& all) : names(all) {}

  /// From now on a prefix may be bound to nothing (Namespaces in XML 1.1, 5).
  void allow_undeclaring() noexcept { may_undeclare = true; }

  /// An element begins, of whose attributes no two have the same name. Whether nothing is wrong with it; then its
  /// attributes have their namespaces.
  bool open(axsQName const& name, axsReadAttributes& attributes)
  {
    ++depth;
    return (name.prefix == nullptr && !attributes.has_namespaces()) || open_with_prefixes(name, attributes);
  }

  /// The element that began last ends.
  void close()
  {
    if (!declared.empty())
      unbind();
    --depth;
  }

  std::string_view namespace_of(std::string_view prefix) const override;

  /// The namespace of the name of an element that is open; empty for none.
  std::string_view of_element(axsQName const& name) const
  {
    std::vector<std::string_view> const& bound = (name.prefix != nullptr ? *name.prefix : names.no_prefix()).bound;
    return bound.empty() ? std::string_view() : bound.back();
  }

  /// What is wrong with the element that did not open.
  std::string const& wrong() const noexcept { return error; }

private:
  bool open_with_prefixes(axsQName const& name, axsReadAttributes& attributes);
  void unbind();
  bool declare(axsPrefix& prefix, std::string_view value);
  bool check_name(axsQName const& name, bool is_attribute);
  bool check_repetition(axsReadAttributes const& attributes);
  std::string_view of_attribute(axsQName const& name) const;
  bool fail(std::string const& text);

  axsNameCache const& names;
  std::string error;
  // All that were bound: long names of namespaces are compared by where they lie.
  std::unordered_set<std::string, axsTextHash> namespaces;
  bool may_undeclare = false;
  // The prefixes declared by the open elements, and at which depth.
  std::vector<std::pair<std::size_t, axsPrefix*>> declared;
  std::size_t depth = 0;
};
