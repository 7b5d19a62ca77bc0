#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A namespace prefix of one document; the default namespace is that of the prefix without characters.
struct axsPrefix
{
  std::string text;

  /// The namespaces that it is bound to, the innermost at the end. Each namespace of a document lies in one place.
  std::vector<std::string_view> bound;
};
