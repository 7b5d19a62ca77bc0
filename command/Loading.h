#pragma once

#include <axmDocumentFactory.h>

#include <memory>
#include <string>

/// Loads `file` and, if it cannot, says why on standard error: as "file:line:column: text", with the line and a mark under
/// the column where they are known. Empty then.
std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options);

/// Says on standard error why `file` cannot be read, in that form; `more` follows the text.
void complain_about(axmParseError const& error, std::string const& file, std::string const& more = {});

/// The same without the line, of what cannot be opened a second time.
void complain_in_one_line(axmParseError const& error, std::string const& file, std::string const& more);

/// The factory of the built-in engine; without one says so on standard error, and is empty.
std::shared_ptr<axmDocumentFactory> engine_or_complain();
