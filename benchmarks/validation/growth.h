#pragma once

#include <string>

/// Measures how the time of a check grows with the size of the schema, numbers of occurrences, the length of values and the
/// counts in patterns, each doubled several times, and prints it for each size as a whole and divided by the size. Files go
/// to the folder. Whether all that is to be valid is.
bool measure_growth(std::string const& folder, int rounds);
