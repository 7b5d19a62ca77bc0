#pragma once

#include <map>
#include <string>
#include <vector>

/// Prefixes with their namespaces, as the option --ns has them: P=URI.

/// Why `space` is none; empty if it is one.
std::string wrong_namespace(std::string const& space);

/// All of them, none of which is wrong; of several with one prefix the last one counts.
std::map<std::string, std::string> namespaces_of(std::vector<std::string> const& spaces);
