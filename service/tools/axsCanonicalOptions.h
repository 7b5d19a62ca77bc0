#pragma once

#include <set>
#include <string>

/// Which canonical form a document is to have.
struct axsCanonicalOptions
{
  /// Exclusive XML Canonicalization 1.0: an element has the declarations of those prefixes only that its tag uses.
  bool is_exclusive = false;

  /// Whether comments stay.
  bool has_comments = false;

  /// Of the exclusive form: prefixes, in UTF-8, whose declarations stay where they are ("InclusiveNamespaces PrefixList");
  /// "#default" is the default namespace.
  std::set<std::string> inclusive_prefixes;
};
