#pragma once

#include "axsReadError.h"

class axsSource;

/// Finds what is no text in a document: parsers tell of it in words about something else, and often in another place.
namespace axsBadBytes
{
/// Why the document in `source` could not be read: of one in UTF-8 that has a byte in it that is not, or a zero byte, that
/// byte with its place, if `error` stands there or behind, or is about the encoding; otherwise `error`. Reads the source
/// from its start, if that can be.
axsReadError explained(axsSource& source, axsReadError const& error);
}
