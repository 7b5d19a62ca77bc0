#pragma once

#include <axmNode.h>

#include <string>
#include <vector>

/// Helps who asks for a name without saying its namespace, as documents with a default one invite to.
class NamespaceHint
{
public:
  /// What to add to the message that `xpath` selects nothing in the document of `root`: which --ns to give; empty where
  /// that is not the reason.
  static std::string of(axmNode& root, std::string const& xpath);

  /// The names in an expression that have no prefix and are no functions, axes or variables and not those of attributes.
  static std::vector<std::string> names_in(std::string const& xpath);
};
