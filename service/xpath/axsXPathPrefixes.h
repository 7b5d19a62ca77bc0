#pragma once

#include <map>
#include <string>

/// Prefixes and the namespaces that they are bound to, in UTF-8, as the one who has an expression evaluated gives them.
using axsXPathPrefixes = std::map<std::string, std::string>;
