#pragma once

#include <string>
#include <vector>

/// What figures hold for: the date, the machine, the compiler, axm and the other libraries, given as "name version"; a line
/// each, none longer than a line of a report.
std::vector<std::string> conditions(std::vector<std::string> const& libraries);

/// "pugixml 1.13" for the version 1130.
std::string pugixml_name(int version);
