#pragma once

#include "TableOutput.h"
#include "TableRequest.h"

#include <string>

/// Takes the rows of one document with the engine's own parser, by all of XML's rules.
namespace ExactTable
{
/// Why the columns or the path cannot be read so; empty if they can.
std::string complaint(TableRequest const& request);

/// Writes the rows of the file, which may be "-" or compressed. False when it could not be read to its end, which is said
/// on standard error then, with the place.
bool write(std::string const& file, TableRequest const& request, TableOutput& output);
}
