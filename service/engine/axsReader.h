#pragma once

#include <axmDocument.h>
#include <axmLoadOptions.h>

#include <memory>

class apString;
class axsSource;

/// Reads documents into trees: ordinary ones with axsScanner, all others with axsXercesParser, which alone says what is
/// wrong with one. Which of them read a document does not show.
namespace axsReader
{
/// The tree of the document in `source`, which gets `uri`. Throws axsReadError when it is not well-formed or cannot be
/// read, std::bad_alloc when memory runs out.
std::shared_ptr<axmDocument> read(axsSource& source, axmLoadOptions const& options, apString const& uri);

/// The same with one of them. Of what the scanner does not take there is no tree, and the source is where it was.
std::shared_ptr<axmDocument> scan(axsSource& source, axmLoadOptions const& options, apString const& uri);
std::shared_ptr<axmDocument> parse(axsSource& source, axmLoadOptions const& options, apString const& uri);
}
