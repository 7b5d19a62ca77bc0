#pragma once

#include <apString.h>
#include <axmLoadOptions.h>

class axsParseHandler;
class axsSource;

/// Parses documents with Xerces-C (XML 1.0 with namespaces, and 1.1 where a document says so).
///
/// Nothing outside the document is read, except where the options enable the resolution of entities: then files that it
/// names relative to itself. An external DTD subset is never read. What entities and defaults make of a document is
/// bounded: in number by the options, in size to `growth_limit` times the document once it exceeds `growth_free` bytes.
/// May run in many threads at once.
namespace axsXercesParser
{
constexpr std::size_t growth_free = std::size_t{8} * 1024 * 1024;
constexpr std::size_t growth_limit = 100;

/// Tells `events` of the document in `source`. Throws axsReadError when it is not well-formed, breaks a bound or needs
/// what it may not have, std::bad_alloc when memory runs out.
void parse(axsSource& source, axmLoadOptions const& options, axsParseHandler& events);
}
