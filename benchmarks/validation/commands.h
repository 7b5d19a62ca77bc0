#pragma once

#include <string>

/// Measures the commands axm (`program`) and xmllint on 500 small documents that are checked by one schema in one run.
/// Files go to the folder. Whether both take all of them for valid.
bool measure_commands(std::string const& program, std::string const& folder, int rounds);
