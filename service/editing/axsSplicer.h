#pragma once

#include "axsSplice.h"

#include <string>
#include <vector>

class axsSourceText;

/// Writes a document anew with some pieces of its text replaced. All other bytes are as they were.
namespace axsSplicer
{
/// The bytes of the document with `splices` made, in whatever order they come; those at one place keep it. A character that
/// the encoding of the document does not have becomes a reference where one may stand. Throws axsEditFault where none may,
/// where the document is in an encoding that cannot be written, and where splices overlap; std::bad_alloc when memory
/// runs out.
std::string apply(axsSourceText const& source, std::vector<axsSplice> splices);
}
