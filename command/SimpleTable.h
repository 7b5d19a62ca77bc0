#pragma once

#include "TableOutput.h"
#include "TableRequest.h"

#include <string>

/// Takes the rows of one document with the simple streaming reader, by its rules.
namespace SimpleTable
{
/// Why the columns or the path cannot be read so; empty if they can.
std::string complaint(TableRequest const& request);

/// Writes the rows of the file. What went wrong, in a sentence; empty if nothing did.
std::string write(std::string const& file, TableRequest const& request, TableOutput& output);
}
