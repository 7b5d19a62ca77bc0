#pragma once

#include <axmDocumentFactory.h>

#include <memory>
#include <string>

/// Loads `file` and, if it cannot, says why on standard error: as "file:line:column: text", with the line and a mark under
/// the column where they are known. Empty then.
std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options);

/// The factory of the built-in engine; without one says so on standard error, and is empty.
std::shared_ptr<axmDocumentFactory> engine_or_complain();
