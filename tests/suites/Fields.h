#pragma once

#include <string>
#include <vector>

/// The fields of `line`, which tabs part; a carriage return at its end is not of it.
std::vector<std::string> split_fields(std::string const& line);
