#pragma once

#include <axmLoadOptions.h>

#include <cstddef>

class axsParseHandler;
class axsSource;

/// Reads the ordinary document, and reads it fast: XML 1.0 with namespaces in UTF-8 or US-ASCII, well-formed, and if it
/// has an internal subset, a usual one (axsSubset), of whose entities it uses only those that are plain text.
///
/// It judges nothing. Where it meets what is unusual or wrong it stops, and axsXercesParser reads the document from its
/// start and says what is to be said. So it may refuse whatever it likes, but what it takes the other one takes, too, and
/// tells of in the same words.
/// May run in many threads at once.
namespace axsScanner
{
/// A document whose elements are nested deeper is left to the other parser.
constexpr std::size_t most_levels = 1000000;

/// Tells `events` of the document in `source`, which it reads on from where it is. False when it stopped before the
/// document was whole: what it told until then is to be forgotten. Throws axsReadError when the source cannot be read,
/// std::bad_alloc when memory runs out.
bool scan(axsSource& source, axmLoadOptions const& options, axsParseHandler& events);
}
