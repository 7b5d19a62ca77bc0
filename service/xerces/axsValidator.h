#pragma once

#include <axmLoadOptions.h>

class axsElement;
class axsSource;

/// Validates documents against XML Schemas (XML Schema Part 1 and 2, 1.0), with Xerces-C.
///
/// It reads the document anew and tells of errors only: the tree is built without it. Nothing that a document says of
/// schemas is heeded; its root is valid or not by the schemas given, and with a root whose namespace none of them knows
/// there is nothing to validate.
/// Documents nested more than 20000 levels deep are refused.
/// May run in many threads at once.
namespace axsValidator
{
/// Whether the options ask for validation with at least one schema.
bool is_wanted(axmLoadOptions const& options);

/// Validates the well-formed document in `source`, which is whole and whose root is `root`. Throws axsReadError when it
/// is not valid or a schema cannot be used, std::bad_alloc when memory runs out.
void validate(axsSource& source, axmLoadOptions const& options, axsElement const& root);
}
