#pragma once

#include <axmDocument.h>
#include <axmLoadOptions.h>

#include <memory>

class apString;
class axsSource;

/// Reads documents into trees.
namespace axsLoader
{
/// The tree of the document in `source`, which gets `uri`, validated in the same pass where the options ask for it. Throws
/// axsReadError when it is not well-formed, not valid or cannot be read, or its schemas cannot be used; std::bad_alloc when
/// memory runs out.
std::shared_ptr<axmDocument> load(axsSource& source, axmLoadOptions const& options, apString const& uri);

/// The same with all white space in the tree.
std::shared_ptr<axmDocument> load_with_spaces(axsSource& source, axmLoadOptions const& options, apString const& uri);
}
